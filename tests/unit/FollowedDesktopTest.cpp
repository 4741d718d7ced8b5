// SPDX-License-Identifier: MIT
#include "platform/desktop/FollowedDesktop.h"
#include "tests/fakes/ManualRunLoop.h"

#include <gtest/gtest.h>

namespace {

const ApplicationRecord kWriter{QStringLiteral("Writer"), {}, 7};
const ApplicationRecord kMailer{QStringLiteral("Mailer"), {}, 8};

// A back end with the windows that a test gives it.
class Desktop : public FollowedDesktop {
public:
    Desktop(DesktopEntries& entries, RunLoop& runLoop)
        : FollowedDesktop(entries, runLoop, [this] { settle(); }) {}

    using FollowedDesktop::desktopInFront;
    using FollowedDesktop::Front;
    using FollowedDesktop::newNumber;
    using FollowedDesktop::noteChange;

    void add(const ApplicationRecord& owner) {
        const std::int64_t number = newNumber();
        m_windows.insert(m_windows.begin(),
                         {number, owner.processIdentifier, true, QStringLiteral("Page"), owner.name});
        active = {.window = number, .application = owner};
        noteChange();
    }
    void settle() { settleFront(active, isAnswerOwed); }

    QString describe() const override { return {}; }
    void askForSign() override {}

    // "Writer: 2 1", the windows front to back.
    QString shown() const {
        QStringList numbers;
        for (const WindowListEntry& entry : onScreenWindows())
            numbers << QString::number(entry.number);
        return activeApplication()->name + QStringLiteral(": ") + numbers.join(u' ');
    }

    std::optional<Front> active;
    bool isAnswerOwed = false;
    mutable int timesListed = 0;

private:
    std::vector<WindowListEntry> listed() const override {
        ++timesListed;
        return m_windows;
    }

    std::vector<WindowListEntry> m_windows;
};

class FollowedDesktopTest : public testing::Test {
protected:
    FollowedDesktopTest() {
        desktop.add(kWriter);
        desktop.add(kMailer);
        desktop.settle();
    }

    HandClock clock;
    ManualRunLoop runLoop{clock};
    DesktopEntries entries{{}, clock};
    Desktop desktop{entries, runLoop};
};

TEST_F(FollowedDesktopTest, theActiveWindow_isInFrontWithItsApplication) {
    EXPECT_EQ(desktop.shown(), QStringLiteral("Mailer: 2 1"));
    desktop.active = {.window = 1, .application = kWriter};
    desktop.settle();
    EXPECT_EQ(desktop.shown(), QStringLiteral("Writer: 1 2"));
}

TEST_F(FollowedDesktopTest, withoutAChange_nothingIsListedAnew) {
    const int before = desktop.timesListed;
    desktop.settle();
    EXPECT_EQ(desktop.timesListed, before);
    desktop.noteChange();
    desktop.settle();
    EXPECT_EQ(desktop.timesListed, before + 1);
}

TEST_F(FollowedDesktopTest, nothingActive_isBelievedAfterAMoment) {
    desktop.active.reset();
    desktop.settle();
    EXPECT_EQ(desktop.shown(), QStringLiteral("Mailer: 2 1"));
    runLoop.advance(EmptyMoment::kLength);
    EXPECT_EQ(desktop.shown(), QStringLiteral("Desktop: 2 1"));
}

TEST_F(FollowedDesktopTest, nothingActive_isNotBelievedWhileAnAnswerIsMissing) {
    desktop.active.reset();
    desktop.isAnswerOwed = true;
    desktop.settle();
    runLoop.advance(2 * EmptyMoment::kLength);
    EXPECT_EQ(desktop.shown(), QStringLiteral("Mailer: 2 1"));
}

TEST_F(FollowedDesktopTest, theDesktopItself_isBelievedAtOnce) {
    desktop.active = Desktop::desktopInFront();
    desktop.settle();
    EXPECT_EQ(desktop.shown(), QStringLiteral("Desktop: 2 1"));
}

TEST_F(FollowedDesktopTest, aNewWindowOfNoInstalledProgram_isUndecidedForAMoment) {
    int switches = 0;
    const Subscription subscription = desktop.observeSwitches([&] { ++switches; });
    desktop.add(kWriter);
    desktop.active->undecided = desktop.active->window;
    desktop.settle();
    EXPECT_TRUE(desktop.isUndecided());
    EXPECT_EQ(desktop.shown(), QStringLiteral("Writer: 3 2 1"));
    EXPECT_EQ(switches, 1);
    runLoop.advance(FirstMoments::kLength);
    EXPECT_FALSE(desktop.isUndecided());
    EXPECT_EQ(switches, 2);
    desktop.settle();
    EXPECT_EQ(switches, 2);
}

TEST_F(FollowedDesktopTest, aWindowThatSaysItsProgramMeanwhile_isDecidedAtOnce) {
    desktop.add(kWriter);
    desktop.active->undecided = desktop.active->window;
    desktop.settle();
    desktop.active->undecided = 0;
    desktop.settle();
    EXPECT_FALSE(desktop.isUndecided());
}

TEST_F(FollowedDesktopTest, windowsThatWereThereBefore_areDecided) {
    Desktop other(entries, runLoop);
    other.add(kWriter);
    other.active->undecided = 1;
    other.settle();
    EXPECT_FALSE(other.isUndecided());
}

} // namespace
