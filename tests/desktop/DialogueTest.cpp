// SPDX-License-Identifier: MIT
// Dialogues, and windows that say late which program they belong to, under real window managers.
#include "tests/desktop/Account.h"
#include "tests/desktop/X11Scene.h"
#include "tests/desktop/harness/LiveEngine.h"
#include "tests/desktop/harness/Packaged.h"
#include "tests/desktop/harness/XClient.h"
#include "tests/fakes/ManualRunLoop.h"

#include <gtest/gtest.h>

namespace {

// As an office suite's windows: all say the suite first, and the word processor's a moment later that they are its.
XWindowLook suite(const QByteArray& title) {
    return {.title = title, .instanceName = "soffice", .className = "Soffice"};
}

void install(const X11Scene& scene) {
    for (const char* name : {"Writer", "Calc"})
        scene.desk.home().write(
            QStringLiteral("data/applications/suite-%1.desktop").arg(QString::fromLatin1(name).toLower()),
            QByteArray("[Desktop Entry]\nType=Application\nName=Suite ") + name + "\nStartupWMClass=suite-" +
                QByteArray(name).toLower() + "\nExec=suite\n");
}

class DialogueTest : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        SKIP_WHERE_NOT_PACKAGED(QString::fromLatin1(GetParam()));
        m_scene = std::make_unique<X11Scene>(QString::fromLatin1(GetParam()));
        install(*m_scene);
        m_suite = std::make_unique<XClient>(m_scene->desk);
    }

    X11Scene& scene() { return *m_scene; }
    XClient& program() { return *m_suite; }

    xcb_window_t openWriter(const QByteArray& title) {
        return openInFront({.title = title, .instanceName = "suite", .className = "suite-writer"});
    }

    xcb_window_t openInFront(const XWindowLook& look) {
        const xcb_window_t window = m_suite->open(look);
        m_suite->activate(window);
        return window;
    }

    // A dialogue says whose it is before it is on the screen.
    xcb_window_t openDialogue(const XWindowLook& look, xcb_window_t parent, XClient* by = nullptr) {
        XClient& opener = by ? *by : *m_suite;
        XWindowLook hidden = look;
        hidden.isMapped = false;
        const xcb_window_t dialogue = opener.open(hidden);
        opener.setNumbers(dialogue, "WM_TRANSIENT_FOR", "WINDOW", {parent});
        opener.map(dialogue);
        opener.activate(dialogue);
        return dialogue;
    }

    void sayClass(xcb_window_t window, const char* windowClass) {
        m_suite->setText(window, "WM_CLASS", "STRING", QByteArray("suite\0", 6) + windowClass + '\0');
    }

    bool isUndecided() { return scene().desktop->isUndecided(); }

private:
    std::unique_ptr<X11Scene> m_scene;
    std::unique_ptr<XClient> m_suite;
};

INSTANTIATE_TEST_SUITE_P(X11, DialogueTest, testing::Values("openbox", "metacity", "xfwm4", "kwin_x11"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(DialogueTest, aDialogueOfTheSameProcess_isItsWindowsProgram) {
    const xcb_window_t page = openWriter("Page");
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    openDialogue(suite("Open"), page);
    EXPECT_SEEN(scene(), "Suite Writer: Open");
    EXPECT_FALSE(isUndecided());
}

TEST_P(DialogueTest, aDialogueOfADialogue_isTheProgramsToo) {
    const xcb_window_t page = openWriter("Page");
    const xcb_window_t options = openDialogue(suite("Options"), page);
    EXPECT_SEEN(scene(), "Suite Writer: Options");
    openDialogue(suite("Colour"), options);
    EXPECT_SEEN(scene(), "Suite Writer: Colour");
}

TEST_P(DialogueTest, dialoguesOfEachOther_areNoLoop) {
    const xcb_window_t first = openInFront(suite("First"));
    const xcb_window_t second = openDialogue(suite("Second"), first);
    program().setNumbers(first, "WM_TRANSIENT_FOR", "WINDOW", {second});
    EXPECT_SEEN(scene(), "Soffice: Second");
}

TEST_P(DialogueTest, aDialogueForAnotherProgramsWindow_isItsOwnProgram) {
    const xcb_window_t page = openWriter("Page");
    XClient other(scene().desk);
    openDialogue({.title = "Save", .instanceName = "portal", .className = "Portal"}, page, &other);
    EXPECT_SEEN(scene(), "Portal: Save");
}

TEST_P(DialogueTest, aDialogueForTheWholeScreen_isItsOwnProgram) {
    openWriter("Page");
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    openDialogue(suite("Notice"), scene().desktop->connection().root());
    EXPECT_SEEN(scene(), "Soffice: Notice");
}

TEST_P(DialogueTest, aWindowThatSaysItsClassLate_isUndecidedUntilThen) {
    openWriter("Page");
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    HandClock hand;
    ManualRunLoop timers(hand);
    scene().open(timers);
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    const xcb_window_t sheet = openInFront(suite("Sheet"));
    EXPECT_SEEN(scene(), "Soffice: Sheet");
    EXPECT_TRUE(isUndecided());
    sayClass(sheet, "suite-calc");
    EXPECT_SEEN(scene(), "Suite Calc: Sheet");
    EXPECT_FALSE(isUndecided());
}

TEST_P(DialogueTest, aWindowThatSaysNothingBetter_isDecidedAfterAMoment) {
    openWriter("Page");
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    HandClock hand;
    ManualRunLoop timers(hand);
    scene().open(timers);
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    openInFront(suite("Game"));
    EXPECT_SEEN(scene(), "Soffice: Game");
    EXPECT_TRUE(isUndecided());
    timers.advance(FirstMoments::kLength);
    EXPECT_TRUE(waitFor([&] { return !isUndecided(); }));
    EXPECT_EQ(scene().seen(), QStringLiteral("Soffice: Game"));
}

// The suite asks how to read a file before the window for it is there.
TEST_P(DialogueTest, aDialogueBeforeItsWindow_waitsForIt) {
    openWriter("Page");
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    HandClock hand;
    ManualRunLoop timers(hand);
    scene().open(timers);
    EXPECT_SEEN(scene(), "Suite Writer: Page");
    XWindowLook hidden = suite("Sheet");
    hidden.isMapped = false;
    const xcb_window_t sheet = program().open(hidden);
    const xcb_window_t question = openDialogue(suite("Text Import"), sheet);
    EXPECT_SEEN(scene(), "Suite Writer: Text Import");
    EXPECT_TRUE(isUndecided()) << "what it is for says it better";
    timers.advance(10 * FirstMoments::kLength);
    EXPECT_TRUE(isUndecided());
    program().destroy(question);
    program().map(sheet);
    program().activate(sheet);
    EXPECT_SEEN(scene(), "Soffice: Sheet");
    EXPECT_TRUE(isUndecided());
    sayClass(sheet, "suite-calc");
    EXPECT_SEEN(scene(), "Suite Calc: Sheet");
}

// The engine makes no entries of its own, so here no program is installed.
TEST(DialogueAccount, aDialoguesTime_isItsProgramsAndInARowOfItsOwn) {
    Desk desk;
    XClient program(desk);
    const xcb_window_t page = program.open({.title = "Page", .className = "Writer"});
    X11LiveEngine engine(desk);
    engine.timer().startTimer();
    program.activate(page);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Writer")) > 0.2; }));
    XWindowLook look = suite("Open");
    look.isMapped = false;
    const xcb_window_t open = program.open(look);
    program.setNumbers(open, "WM_TRANSIENT_FOR", "WINDOW", {page});
    program.map(open);
    program.activate(open);
    ASSERT_TRUE(waitFor([&] {
        const auto* window = engine.tracker().activeStoreWindow();
        return window && window->name() == QStringLiteral("Open") && window->activeTime() > 0.2;
    }));
    EXPECT_EQ(timeOf(engine.tracker(), QStringLiteral("Soffice")), 0);
}

TEST(DialogueAccount, aLateClass_losesNothingAndMakesNoProgramUp) {
    Desk desk;
    X11LiveEngine engine(desk);
    XClient program(desk);
    const xcb_window_t first = program.open({.title = "Page", .className = "Writer"});
    program.activate(first);
    engine.timer().startTimer();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Writer")) > 0.2; }));
    const Instant before = engine.clock().instant();
    const Seconds sumBefore = sumOf(engine.tracker());
    XClient other(desk);
    const xcb_window_t sheet = other.open(suite("Sheet"));
    other.activate(sheet);
    ASSERT_TRUE(waitFor([&] { return engine.desktop().isUndecided(); }));
    other.setText(sheet, "WM_CLASS", "STRING", QByteArray("calc\0Calc\0", 10));
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Calc")) > 0.3; }));
    engine.timer().computeTime();
    EXPECT_NEAR(sumOf(engine.tracker()) - sumBefore, secondsBetween(before, engine.clock().instant()), 0.15);
    for (const auto& app : engine.tracker().fullTimeSet())
        EXPECT_NE(app->name(), QStringLiteral("Soffice"));
}

} // namespace
