// SPDX-License-Identifier: MIT
#include "tests/Places.h"
#include "tests/desktop/X11Scene.h"
#include "tests/fakes/ManualRunLoop.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <set>

namespace {

XWindowLook editor(const QByteArray& title) {
    return {.title = title, .instanceName = "editor", .className = "Editor"};
}

XWindowLook mail(const QByteArray& title) {
    return {.title = title, .instanceName = "mail", .className = "Mail"};
}

class X11DesktopTest : public testing::Test {
protected:
    X11Scene scene;
    XClient client{scene.desk};

    xcb_window_t openInFront(const XWindowLook& look) {
        const xcb_window_t window = client.open(look);
        client.activate(window);
        return window;
    }
};

TEST_F(X11DesktopTest, aWindowWithoutProcessNumber_isKnownByItsConnection) {
    XWindowLook look = editor("Page");
    look.hasProcessIdentifier = false;
    openInFront(look);
    EXPECT_SEEN(scene, "Editor: Page");
    EXPECT_EQ(scene.desktop->activeApplication()->processIdentifier, client.processIdentifier());
}

TEST_F(X11DesktopTest, aProgramOfAnotherMachine_hasANumberOfItsOwnForAllItsWindows) {
    const xcb_window_t first = openInFront(editor("First"));
    EXPECT_SEEN(scene, "Editor: First");
    client.setText(first, "WM_CLIENT_MACHINE", "STRING", "elsewhere.example");
    ASSERT_TRUE(waitFor([&] { return scene.desktop->activeApplication()->processIdentifier < 0; }));
    const std::int64_t number = scene.desktop->activeApplication()->processIdentifier;
    EXPECT_EQ(scene.desktop->activeApplication()->path, QString());
    EXPECT_SEEN(scene, "Editor: First");
    const xcb_window_t second = client.open({.title = "Second", .isMapped = false});
    client.setText(second, "WM_CLIENT_MACHINE", "STRING", "elsewhere.example");
    client.map(second);
    client.activate(second);
    EXPECT_SEEN(scene, "Client: Second");
    EXPECT_EQ(scene.desktop->activeApplication()->processIdentifier, number);
}

TEST_F(X11DesktopTest, theRecord_namesTheExecutable) {
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    EXPECT_EQ(scene.desktop->activeApplication()->path,
              QFileInfo(QStringLiteral(TICKLOG_BINARY_DIR "/x-client")).canonicalFilePath());
}

TEST_F(X11DesktopTest, aWindowWithoutTitle_hasNone) {
    openInFront(editor({}));
    EXPECT_SEEN(scene, "Editor: (untitled)");
}

TEST_F(X11DesktopTest, aVeryLongTitle_isCut) {
    openInFront(editor(QByteArray(10000, 'x')));
    ASSERT_TRUE(waitFor([&] { return scene.frontTitle().startsWith(u"xxx"); }));
    EXPECT_EQ(scene.frontTitle().size(), 4096);
}

TEST_F(X11DesktopTest, invalidUtf8AndLineBreaks_areReplaced) {
    openInFront(editor("a\xff"
                       "b\nc"));
    EXPECT_SEEN(scene, "Editor: a\uFFFD"
                       "b c");
}

TEST_F(X11DesktopTest, aTitleOfTheOldType_isReadAsLatin1) {
    const xcb_window_t window = openInFront(editor("Page"));
    client.setText(window, "_NET_WM_NAME", "STRING", "M\xfcller");
    EXPECT_SEEN(scene, "Editor: Müller");
}

TEST_F(X11DesktopTest, aPlainTitle_standsInForTheOther) {
    XWindowLook look = editor({});
    look.plainTitle = "M\xfcller";
    const xcb_window_t window = openInFront(look);
    EXPECT_SEEN(scene, "Editor: Müller");
    client.setText(window, "WM_NAME", "COMPOUND_TEXT", "M\xfcller \x1b%G\xe6\xbc\xa2\x1b%@ kun");
    EXPECT_SEEN(scene, "Editor: Müller 漢 kun");
    client.setText(window, "_NET_WM_NAME", "UTF8_STRING", "Better");
    EXPECT_SEEN(scene, "Editor: Better");
    client.removeProperty(window, "_NET_WM_NAME");
    EXPECT_SEEN(scene, "Editor: Müller 漢 kun");
}

TEST_F(X11DesktopTest, aTerminalThatHasSetNoTitle_isSeen) {
    const auto terminal =
        scene.desk.start(QStringLiteral("xterm"), {QStringLiteral("-T"), QStringLiteral("shell"),
                                                   QStringLiteral("-e"), QStringLiteral("cat")});
    ASSERT_NE(scene.desk.waitForWindow(*terminal), 0U);
    EXPECT_SEEN(scene, "XTerm: shell");
    EXPECT_EQ(scene.desktop->activeApplication()->processIdentifier, terminal->processIdentifier());
}

// The server gives the id of a closed window to the next program.
TEST_F(X11DesktopTest, terminalsOpenedAndClosedInTurn_haveNumbersOfTheirOwn) {
    std::set<std::int64_t> numbers;
    std::set<xcb_window_t> ids;
    for (int i = 1; i <= 4; ++i) {
        const QString title = QStringLiteral("report-%1").arg(i);
        const auto terminal =
            scene.desk.start(QStringLiteral("xterm"),
                             {QStringLiteral("-T"), title, QStringLiteral("-e"), QStringLiteral("cat")});
        ids.insert(scene.desk.waitForWindow(*terminal));
        const QString seen = QStringLiteral("XTerm: ") + title;
        EXPECT_EQ(scene.seenAfterWaitingFor(seen), seen);
        numbers.insert(scene.desktop->onScreenWindows()[0].number);
        terminal->kill();
        EXPECT_SEEN(scene, "Desktop: none");
    }
    EXPECT_LT(ids.size(), 4U) << "the server no longer gives ids again: the case is not tested";
    EXPECT_EQ(numbers.size(), 4U);
}

TEST_F(X11DesktopTest, aWindowThatTakesAnIdWhileNobodyLooked_isAnotherWindow) {
    const auto openOne = [&](const char* title) {
        auto program = std::make_unique<XClient>(scene.desk);
        const xcb_window_t window = program->open(editor(title));
        program->activate(window);
        return std::pair(std::move(program), window);
    };
    auto [first, window] = openOne("First");
    EXPECT_SEEN(scene, "Editor: First");
    const std::int64_t number = scene.desktop->onScreenWindows()[0].number;
    // Without a turn of our event loop in between.
    first->die();
    auto [second, again] = openOne("Second");
    ASSERT_EQ(again, window) << "the server no longer gives ids again: the case is not tested";
    EXPECT_SEEN(scene, "Editor: Second");
    EXPECT_NE(scene.desktop->onScreenWindows()[0].number, number);
    second->setTitle(again, "Second, changed");
    EXPECT_SEEN(scene, "Editor: Second, changed");
}

TEST_F(X11DesktopTest, aWindowThatIsPutAwayAndComesBack_keepsItsNumber) {
    const xcb_window_t page = openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    const std::int64_t number = scene.desktop->onScreenWindows()[0].number;
    client.minimise(page);
    EXPECT_SEEN(scene, "Desktop: none");
    client.activate(page);
    EXPECT_SEEN(scene, "Editor: Page");
    EXPECT_EQ(scene.desktop->onScreenWindows()[0].number, number);
}

TEST_F(X11DesktopTest, aMomentWithoutFrontWindow_isNotTold) {
    const xcb_window_t window = openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    HandClock hand;
    ManualRunLoop timers(hand);
    scene.open(timers);
    EXPECT_SEEN(scene, "Editor: Page");
    scene.switches.clear();
    for (int i = 0; i < 5; ++i) {
        client.setNumbers(0, "_NET_ACTIVE_WINDOW", "WINDOW", {0});
        ASSERT_TRUE(waitFor([&] { return timers.activeTimers() == 1; }));
        timers.advance(EmptyMoment::kLength - std::chrono::milliseconds(1));
        EXPECT_EQ(scene.seen(), QStringLiteral("Editor: Page"));
        client.setNumbers(0, "_NET_ACTIVE_WINDOW", "WINDOW", {window});
        ASSERT_TRUE(waitFor([&] { return timers.activeTimers() == 0; }));
    }
    timers.advance(2 * EmptyMoment::kLength);
    EXPECT_EQ(scene.switches, QStringList());
}

TEST_F(X11DesktopTest, aMomentThatWasOverBeforeItWasNoticed_isNotTold) {
    HandClock hand;
    ManualRunLoop timers(hand);
    const xcb_window_t window = openInFront(editor("Page"));
    auto opened = X11Desktop::open(scene.desk.display().name().toLatin1(), timers, scene.log, scene.entries);
    ASSERT_TRUE(opened);
    const std::unique_ptr<X11Desktop> desktop = std::move(*opened);
    const auto isEditorInFront = [&] {
        return desktop->activeApplication() && desktop->activeApplication()->name == QStringLiteral("Editor");
    };
    ASSERT_TRUE(waitFor(isEditorInFront));
    int switches = 0;
    const Subscription subscription = desktop->observeSwitches([&] { ++switches; });
    scene.desk.probe().sayActiveWindow(0);
    ASSERT_TRUE(waitFor([&] { return timers.activeTimers() == 1; }));
    scene.desk.probe().sayActiveWindow(window);
    timers.advance(std::chrono::seconds(1));
    EXPECT_TRUE(waitFor([&] { return timers.activeTimers() == 0 && isEditorInFront(); }));
    EXPECT_EQ(switches, 0);
}

TEST_F(X11DesktopTest, aFrontWindowThatNobodyKnows_isTheDesktop) {
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    client.setNumbers(0, "_NET_ACTIVE_WINDOW", "WINDOW", {0x7654321});
    EXPECT_SEEN(scene, "Desktop: none");
}

TEST_F(X11DesktopTest, aMinimisedWindowThatIsStillNamed_isNotInFront) {
    const xcb_window_t window = openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    client.minimise(window);
    EXPECT_SEEN(scene, "Desktop: none");
    client.setNumbers(0, "_NET_ACTIVE_WINDOW", "WINDOW", {window});
    EXPECT_TRUE(scene.catchUp());
    EXPECT_EQ(scene.seen(), QStringLiteral("Desktop: none"));
}

TEST_F(X11DesktopTest, focusWithoutRaise_isCreditedToTheFocusedWindow) {
    const xcb_window_t below = client.open(editor("Below"));
    const xcb_window_t above = client.open(editor("Above"));
    client.activate(above);
    EXPECT_SEEN(scene, "Editor: Above");
    // The window manager may still be handling the window above, and focus it once more.
    ASSERT_TRUE(waitFor([&] {
        client.focus(below);
        return waitFor([&] { return scene.seen() == QStringLiteral("Editor: Below"); },
                       std::chrono::seconds(1));
    }));
    EXPECT_EQ(scene.desktop->onScreenWindows()[1].name, QStringLiteral("Above"));
}

TEST_F(X11DesktopTest, aDockWithTheFocus_isInFrontWithoutAWindowOfItsOwn) {
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    XClient panel(scene.desk);
    const xcb_window_t dock =
        panel.open({.title = "Panel", .instanceName = "panel", .className = "Panel", .type = "DOCK"});
    panel.setNumbers(0, "_NET_ACTIVE_WINDOW", "WINDOW", {dock});
    EXPECT_SEEN(scene, "Panel: none");
    EXPECT_FALSE(scene.desktop->onScreenWindows()[0].isOrdinary);
}

TEST_F(X11DesktopTest, aDesktopWindowWithTheFocus_isTheDesktop) {
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    XClient files(scene.desk);
    const xcb_window_t desktop =
        files.open({.title = "Icons", .instanceName = "files", .className = "Files", .type = "DESKTOP"});
    files.activate(desktop);
    EXPECT_SEEN(scene, "Desktop: none");
    EXPECT_FALSE(scene.desktop->onScreenWindows().back().isOrdinary);
}

TEST_F(X11DesktopTest, twoProgramsOfOneClass_areToldApart) {
    XClient other(scene.desk);
    const xcb_window_t first = openInFront(editor("First"));
    const xcb_window_t second = other.open(editor("Second"));
    other.activate(second);
    EXPECT_SEEN(scene, "Editor: Second");
    client.activate(first);
    EXPECT_SEEN(scene, "Editor: First");
    scene.switches.clear();
    other.activate(second);
    EXPECT_SEEN(scene, "Editor: Second");
    client.activate(first);
    EXPECT_SEEN(scene, "Editor: First");
    EXPECT_EQ(scene.switches.size(), 2);
}

TEST_F(X11DesktopTest, aWindowOfOurOwn_isAlwaysTicklog) {
    const xcb_window_t window = openInFront(editor("Page"));
    client.setNumbers(window, "_NET_WM_PID", "CARDINAL", {quint32(QCoreApplication::applicationPid())});
    EXPECT_SEEN(scene, "Ticklog: Page");
}

TEST_F(X11DesktopTest, aPoll_asksTheServerNothing) {
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    EXPECT_TRUE(scene.catchUp());
    const quint64 before = scene.desktop->roundTrips();
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(scene.seen(), QStringLiteral("Editor: Page"));
    EXPECT_EQ(scene.desktop->roundTrips(), before);
}

TEST_F(X11DesktopTest, windowsThatAreThereBefore_areKnownAtOnce) {
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    scene.open();
    EXPECT_EQ(scene.seen(), QStringLiteral("Editor: Page"));
}

TEST_F(X11DesktopTest, aSwitchHandlerThatRunsALoopOfItsOwn_missesNothing) {
    const xcb_window_t first = openInFront(editor("First"));
    EXPECT_SEEN(scene, "Editor: First");
    XClient other(scene.desk);
    const xcb_window_t second = other.open(mail("Second"));
    client.activate(first);
    EXPECT_SEEN(scene, "Editor: First");
    bool isInside = false;
    const Subscription subscription = scene.desktop->observeSwitches([&] {
        if (std::exchange(isInside, true))
            return;
        other.setTitle(second, "Third");
        EXPECT_SEEN(scene, "Mail: Third");
        client.activate(first);
        EXPECT_SEEN(scene, "Editor: First");
    });
    other.activate(second);
    EXPECT_TRUE(waitFor([&] { return isInside; }));
    EXPECT_EQ(scene.seen(), QStringLiteral("Editor: First"));
}

TEST_F(X11DesktopTest, windowsThatComeAndGoQuickly_leaveNothingBehind) {
    for (int i = 0; i < 50; ++i) {
        const xcb_window_t window = client.open({.title = "Brief", .isMapped = false});
        client.map(window);
        client.setTitle(window, "Brief " + QByteArray::number(i));
        client.destroy(window);
    }
    openInFront(editor("Page"));
    EXPECT_SEEN(scene, "Editor: Page");
    EXPECT_TRUE(waitFor([&] { return scene.desktop->onScreenWindows().size() == 1; }));
}

TEST(X11DesktopConnection, aServerThatDies_leavesNoAnswersAndOneLineInTheLog) {
    X11Scene scene(QStringLiteral("openbox"), VirtualDisplay::Number::Kept);
    HandClock hand;
    ManualRunLoop timers(hand);
    scene.open(timers);
    XClient client(scene.desk);
    client.activate(client.open(editor("Page")));
    EXPECT_SEEN(scene, "Editor: Page");
    int lost = 0;
    const Subscription loss = scene.desktop->observeLoss([&] { ++lost; });
    scene.switches.clear();
    scene.desk.killDisplay();
    ASSERT_TRUE(waitFor([&] { return lost > 0; }));
    EXPECT_EQ(scene.front(), QStringLiteral("none"));
    EXPECT_TRUE(scene.desktop->onScreenWindows().empty());
    EXPECT_EQ(scene.switches, QStringList{QStringLiteral("none")});
    timers.advance(std::chrono::hours(1));
    EXPECT_EQ(scene.log.lines.size(), 1) << "however often it was tried again";
    scene.desk.restartDisplay();
    timers.advance(std::chrono::minutes(1));
    XClient next(scene.desk);
    next.activate(next.open(mail("Letter")));
    EXPECT_SEEN(scene, "Mail: Letter");
    EXPECT_EQ(scene.log.lines.size(), 2);
    EXPECT_EQ(lost, 1);
}

TEST(X11DesktopConnection, aDisplayThatIsNotThere_isRefusedWithTheReason) {
    RecordingLog log;
    QtRunLoop runLoop(log);
    SystemClock clock;
    DesktopEntries entries({}, clock);
    const auto opened = X11Desktop::open(":4242", runLoop, log, entries);
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.failure().text, QStringLiteral("the X display :4242 cannot be reached"));
}

TEST(X11DesktopWithoutWindowManager, theInputFocus_tellsWhatIsInFront) {
    X11Scene scene{QString()};
    XClient first(scene.desk);
    XClient second(scene.desk);
    const xcb_window_t page = first.open(editor("A page"));
    const xcb_window_t letter = second.open(mail("A letter"));
    first.focus(page);
    EXPECT_SEEN(scene, "Editor: A page");
    const std::int64_t number = scene.desktop->onScreenWindows()[0].number;
    second.focus(letter);
    EXPECT_SEEN(scene, "Mail: A letter");
    EXPECT_NE(scene.desktop->onScreenWindows()[0].number, number);
    second.setTitle(letter, "Another letter");
    EXPECT_SEEN(scene, "Mail: Another letter");
    second.die();
    EXPECT_SEEN(scene, "Desktop: none");
    first.focus(page);
    EXPECT_SEEN(scene, "Editor: A page");
    EXPECT_EQ(scene.desktop->onScreenWindows()[0].number, number);
}

TEST(X11DesktopWithoutWindowManager, aWindowManagerThatComesAndGoes_isFollowed) {
    X11Scene scene{QString()};
    XClient client(scene.desk);
    const xcb_window_t window = client.open(editor("Page"));
    client.focus(window);
    EXPECT_SEEN(scene, "Editor: Page");
    const QString withoutManager = scene.desktop->describe();
    scene.desk.startWindowManager(QStringLiteral("openbox"));
    ASSERT_TRUE(waitFor([&] { return scene.desk.probe().isInWindowList(window); }));
    client.activate(window);
    EXPECT_TRUE(waitFor([&] { return scene.desktop->describe() != withoutManager; }));
    EXPECT_SEEN(scene, "Editor: Page");
    scene.desk.endWindowManager();
    EXPECT_TRUE(waitFor([&] { return scene.desktop->describe() == withoutManager; }));
    client.focus(window);
    EXPECT_SEEN(scene, "Editor: Page");
}

} // namespace
