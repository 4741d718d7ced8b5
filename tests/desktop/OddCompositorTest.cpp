// SPDX-License-Identifier: MIT
// Messages that a compositor may send, although no real one does on request.
#include "platform/foundation/text/CleanText.h"
#include "platform/wayland/WaylandIdleTime.h"
#include "platform/wayland/WlrootsDesktop.h"
#include "tests/Places.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kSocket = QStringLiteral("wayland-odd");
// Of zwlr_foreign_toplevel_handle_v1.
const QByteArray kMinimised = "1";
const QByteArray kActivated = "2";

class OddCompositor : public testing::Test {
protected:
    OddCompositor() {
        if (program.readLine() != QByteArray("ok"))
            qFatal("the odd compositor does not start");
        auto opened = WlrootsDesktop::open(display, sight.runLoop, sight.log, sight.entries);
        if (!opened)
            qFatal("%s", qPrintable(opened.failure().text));
        desktop = std::move(*opened);
        sight.lookThrough(*desktop);
    }

    QByteArray tell(const QByteArray& command) {
        program.write(command + '\n');
        const auto answer = program.readLine();
        EXPECT_TRUE(answer && answer->startsWith("ok")) << command.constData();
        return answer.value_or(QByteArray()).mid(3);
    }

    // Opens a window in front and answers its number. Empty texts are not sent.
    int openInFront(const QByteArray& app, const QByteArray& title) {
        const QByteArray number = QByteArray::number(windows);
        tell("open");
        if (!app.isEmpty())
            tell("app " + number + " =" + app.toPercentEncoding());
        if (!title.isEmpty())
            tell("title " + number + " =" + title.toPercentEncoding());
        tell("state " + number + ' ' + kActivated);
        tell("done " + number);
        return windows++;
    }

    // Waits until everything sent so far has been handled.
    bool hasTakenInAll() {
        bool isThere = false;
        const Subscription signs = desktop->observeSigns([&] { isThere = true; });
        desktop->askForSign();
        waitFor([&] { return isThere; });
        return isThere;
    }

    TemporaryHome home;
    const QByteArray display = (home.runtimeFolder() + u'/' + kSocket).toLocal8Bit();
    Program program{QStringLiteral(TICKLOG_BINARY_DIR "/odd-compositor"),
                    {kSocket},
                    home.environment(),
                    Program::Output::Read};
    Sight sight{QStringLiteral("/nowhere")};
    std::unique_ptr<WlrootsDesktop> desktop;
    int windows = 0;
};

TEST_F(OddCompositor, aTitleThatIsNoUtf8_isCleaned) {
    openInFront("Editor", "Caf\xE9 \xC3\x28 \xF0\x9F");
    EXPECT_TRUE(waitFor([&] { return sight.front() == QStringLiteral("Editor"); }));
    EXPECT_TRUE(sight.frontTitle().startsWith(QStringLiteral("Caf\uFFFD"))) << qPrintable(sight.frontTitle());
    EXPECT_TRUE(sight.frontTitle().isValidUtf16());
}

TEST_F(OddCompositor, controlCharactersInTitleAndAppId_areBlanks) {
    openInFront("Edi\x1B[31mtor", "one\ntwo\x7Fthree\x01");
    EXPECT_SEEN(sight, "Edi [31mtor: one two three ");
}

TEST_F(OddCompositor, aTitleOfTheLongestMessage_isTakenWhole) {
    // One message of the protocol can hold no more.
    const QByteArray longest(4000, 'x');
    openInFront("Editor", longest);
    EXPECT_TRUE(waitFor([&] { return sight.frontTitle() == QString::fromLatin1(longest); }));
    EXPECT_LT(longest.size(), kLongestText);
}

TEST_F(OddCompositor, aWindowWithoutTitleAndAppId_isAnUnknownProgramsAndUntitled) {
    openInFront({}, {});
    EXPECT_SEEN(sight, "Unknown program: (untitled)");
}

TEST_F(OddCompositor, aWindowClosedWhileActivated_leavesTheDesktop) {
    const int window = openInFront("Editor", "Page");
    EXPECT_SEEN(sight, "Editor: Page");
    tell("close " + QByteArray::number(window));
    EXPECT_SEEN(sight, "Desktop: none");
    EXPECT_EQ(sight.titles(), QStringList());
}

TEST_F(OddCompositor, whatIsNotDone_isNotBelievedYet) {
    openInFront("Editor", "Page");
    EXPECT_SEEN(sight, "Editor: Page");
    tell("title 0 =Half");
    ASSERT_TRUE(hasTakenInAll());
    EXPECT_EQ(sight.seen(), QStringLiteral("Editor: Page"));
    tell("done 0");
    EXPECT_SEEN(sight, "Editor: Half");
}

TEST_F(OddCompositor, twoActivatedWindows_theLaterIsInFront) {
    openInFront("Editor", "Page");
    openInFront("Mail", "Letter");
    EXPECT_SEEN(sight, "Mail: Letter");
    tell("state 1");
    tell("done 1");
    EXPECT_SEEN(sight, "Editor: Page");
}

TEST_F(OddCompositor, anActivatedWindowThatIsMinimised_isNotInFront) {
    openInFront("Editor", "Page");
    EXPECT_SEEN(sight, "Editor: Page");
    tell("state 0 " + kActivated + ' ' + kMinimised);
    tell("done 0");
    EXPECT_SEEN(sight, "Desktop: none");
}

TEST_F(OddCompositor, statesThatNobodyKnows_areIgnored) {
    openInFront("Editor", "Page");
    tell("state 0 99 4294967295 " + kActivated);
    tell("done 0");
    ASSERT_TRUE(hasTakenInAll());
    EXPECT_EQ(sight.seen(), QStringLiteral("Editor: Page"));
}

TEST_F(OddCompositor, aListThatIsFinished_leavesTheDesktopAndIsSaid) {
    openInFront("Editor", "Page");
    EXPECT_SEEN(sight, "Editor: Page");
    tell("finish");
    EXPECT_SEEN(sight, "Desktop: none");
    EXPECT_EQ(sight.titles(), QStringList());
    EXPECT_TRUE(desktop->obstacle().contains(QStringLiteral("no longer tells")));
    // What it still sends belongs to no window.
    tell("title 0 =Ghost");
    tell("done 0");
    ASSERT_TRUE(hasTakenInAll());
    EXPECT_EQ(sight.titles(), QStringList());
}

TEST_F(OddCompositor, thousandsOfWindows_areListed) {
    constexpr int kMany = 5000;
    tell("many " + QByteArray::number(kMany));
    EXPECT_TRUE(waitFor([&] { return sight.titles().size() == kMany; }));
    tell("state 4321 " + kActivated);
    tell("done 4321");
    EXPECT_SEEN(sight, "app21: Window 4321");
    EXPECT_EQ(sight.titles().first(), QStringLiteral("Window 4321"));
}

TEST_F(OddCompositor, whereInputAloneCanBeAskedAbout_itIs) {
    auto opened = WaylandIdleTime::open(display, sight.runLoop, sight.log, sight.clock, 300ms);
    ASSERT_TRUE(opened) << qPrintable(opened.failure().text);
    const auto idleTime = std::move(*opened);
    EXPECT_EQ(tell("asked"), "input 300");
    const auto idle = [&] { return idleTime->read().idle.value_or(std::chrono::nanoseconds(-1)); };
    EXPECT_EQ(idle().count(), 0);
    tell("idle");
    EXPECT_TRUE(waitFor([&] { return idle() >= std::chrono::milliseconds(300); }));
    tell("resume");
    EXPECT_TRUE(waitFor([&] { return idle().count() == 0; }));
}

} // namespace
