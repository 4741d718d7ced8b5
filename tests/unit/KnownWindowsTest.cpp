// SPDX-License-Identifier: MIT
#include "platform/desktop/EmptyMoment.h"
#include "platform/desktop/TellingDesktop.h"
#include "tests/fakes/ManualRunLoop.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

const ApplicationRecord kWriter{QStringLiteral("Writer"), {}, 7};
const ApplicationRecord kMailer{QStringLiteral("Mailer"), {}, 8};

WindowListEntry window(std::int64_t number, const ApplicationRecord& owner) {
    return {number, owner.processIdentifier, true, QStringLiteral("Page %1").arg(number), owner.name};
}

// A back end that reports what a test says.
class Desktop : public TellingDesktop {
public:
    explicit Desktop(DesktopEntries& entries)
        : TellingDesktop(entries) {}

    using TellingDesktop::frontAfterwards;
    using TellingDesktop::lose;
    using TellingDesktop::recordOf;
    using TellingDesktop::show;

    QString describe() const override { return {}; }
    void askForSign() override {}

    QString front() const {
        return activeApplication() ? activeApplication()->name : QStringLiteral("nobody knows");
    }
    QList<std::int64_t> numbers() const {
        QList<std::int64_t> numbers;
        for (const WindowListEntry& entry : onScreenWindows())
            numbers << entry.number;
        return numbers;
    }

    QStringList told;

private:
    Subscription m_switches = observeSwitches([this] { told << front(); });
};

class KnownWindowsTest : public testing::Test {
protected:
    QString nameOf(const QStringList& classes, bool isOwn = false) const {
        return desktop.recordOf(-1, classes, isOwn).name;
    }

    HandClock clock;
    DesktopEntries entries{{}, clock};
    Desktop desktop{entries};
};

TEST_F(KnownWindowsTest, anotherInFront_isTold) {
    desktop.show({window(1, kWriter)}, kWriter);
    desktop.show({window(2, kWriter), window(1, kWriter)}, kWriter);
    EXPECT_EQ(desktop.told, QStringList(kWriter.name)) << "another window is no switch";
    EXPECT_EQ(desktop.numbers(), QList<std::int64_t>({2, 1}));
    desktop.show({}, nothingInFront());
    EXPECT_EQ(desktop.told, QStringList({kWriter.name, kDesktopName}));
}

TEST_F(KnownWindowsTest, theWindowWithTheFocus_isInFrontEvenWhereItIsNotRaised) {
    desktop.show({window(1, kWriter), window(2, kMailer), window(3, kWriter)}, 3, kWriter);
    EXPECT_EQ(desktop.numbers(), QList<std::int64_t>({3, 1, 2}));
    desktop.show({window(1, kWriter), window(2, kMailer)}, 3, kWriter);
    EXPECT_EQ(desktop.numbers(), QList<std::int64_t>({1, 2})) << "it is not listed";
}

TEST_F(KnownWindowsTest, whoStopsHearingWhileTold_isToldOnce) {
    Subscription once;
    once = desktop.observeSwitches([&] {
        once.cancel();
        desktop.told << QStringLiteral("once");
    });
    desktop.show({}, kWriter);
    desktop.show({}, kMailer);
    EXPECT_EQ(desktop.told, QStringList({kWriter.name, QStringLiteral("once"), kMailer.name}));
}

TEST_F(KnownWindowsTest, aDisplayThatGoes_takesItsWindowsBeforeItIsTold) {
    EXPECT_FALSE(desktop.frontAfterwards()) << "nothing was ever known";
    desktop.show({window(1, kWriter)}, kWriter);
    const Subscription loss =
        desktop.observeLoss([this] { desktop.told << desktop.front() + QStringLiteral(", lost"); });
    desktop.lose(desktop.frontAfterwards());
    EXPECT_EQ(desktop.told, QStringList({kWriter.name, QStringLiteral("Desktop, lost"), kDesktopName}));
    EXPECT_EQ(desktop.numbers(), QList<std::int64_t>());
}

TEST_F(KnownWindowsTest, aProgramWithoutAnEntry_isCalledAsItCallsItself) {
    EXPECT_EQ(nameOf({QStringLiteral("xterm"), QStringLiteral("XTerm")}), QStringLiteral("XTerm"));
    EXPECT_EQ(nameOf({QStringLiteral("org.example.Editor"), QString()}),
              QStringLiteral("org.example.Editor"));
    EXPECT_EQ(nameOf({}), kNamelessName);
    EXPECT_EQ(nameOf({QStringLiteral("ticklog")}, true), kOwnName);
}

TEST_F(KnownWindowsTest, aProgramThatSaysNothing_isCalledAfterItsFile) {
    const ApplicationRecord self = desktop.recordOf(::getpid(), {QString()}, false);
    EXPECT_EQ(self.name, QStringLiteral("unit-tests"));
    EXPECT_TRUE(self.path.endsWith(QStringLiteral("/unit-tests")));
    EXPECT_EQ(desktop.recordOf(::getpid(), {}, false, QStringLiteral("Installed")).name,
              QStringLiteral("Installed"));
}

class EmptyMomentTest : public testing::Test {
protected:
    HandClock clock;
    ManualRunLoop runLoop{clock};
    int asked = 0;
    EmptyMoment moment{runLoop, [this] { ++asked; }};
};

TEST_F(EmptyMomentTest, nothingInFrontForLonger_isTrueOnceTheDesktopHasAnsweredAgain) {
    EXPECT_FALSE(moment.isOver(false));
    runLoop.advance(EmptyMoment::kLength / 2);
    EXPECT_FALSE(moment.isOver(false));
    EXPECT_EQ(asked, 0);
    runLoop.advance(EmptyMoment::kLength);
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(moment.isOver(true)) << "it owes the answer";
    EXPECT_TRUE(moment.isOver(false));
}

TEST_F(EmptyMomentTest, somethingInFrontMeanwhile_endsTheMoment) {
    EXPECT_FALSE(moment.isOver(false));
    moment.end();
    runLoop.advance(2 * EmptyMoment::kLength);
    EXPECT_EQ(asked, 0);
    EXPECT_FALSE(moment.isOver(false)) << "a new one begins";
}

} // namespace
