// SPDX-License-Identifier: MIT
// The shortcuts of commands, with the main menu and without it.
#include "tests/interface/Desk.h"

#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct KeyEquivalentsTest : testing::TestWithParam<std::int64_t>, Desk {
    KeyEquivalentsTest() {
        fakes.defaults.setObject(kTKPrefAppType, GetParam());
        controller.appDelegate().presence().setShowDockIcon(GetParam() == 1, true);
        account("Mail", 30);
        show();
        controller.appDelegate().applicationDidFinishLaunching();
        controller.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
        table().setFocus();
    }

    // As the desktop delivers keys: to shortcuts before the focused widget.
    void press(const QKeySequence& keys) {
        QTest::keySequence(QApplication::focusWidget(), keys);
        settle();
    }
};

} // namespace

// With the task bar icon the main menu has the shortcuts; without it the menu is empty and the window has
// them.
INSTANTIATE_TEST_SUITE_P(AppType, KeyEquivalentsTest, testing::Values(1, 0));

TEST_P(KeyEquivalentsTest, aCommandsKeys_runItOnce) {
    EXPECT_EQ(controller.window().menuBar()->actions().isEmpty(), GetParam() == 0);
    int count = 0;
    QObject::connect(actions().toggleCounting, &QAction::triggered, &controller.window(), [&] { ++count; });
    press(actions().toggleCounting->shortcut());
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(controller.timer().isRunning());
    press(actions().toggleCounting->shortcut());
    EXPECT_EQ(count, 2);
    EXPECT_FALSE(controller.timer().isRunning());
}

TEST_P(KeyEquivalentsTest, everyCommandWithKeys_isRunByThem) {
    int seen = 0;
    for (QAction* command : controller.window().appMenu()) {
        // What the commands do, and whether they are enabled, does not matter here.
        QObject::disconnect(command, &QAction::triggered, nullptr, nullptr);
        command->setEnabled(true);
        int count = 0;
        QObject::connect(command, &QAction::triggered, &controller.window(), [&] { ++count; });
        table().setFocus();
        press(command->shortcut());
        EXPECT_EQ(count, 1) << command->objectName().toStdString();
        QObject::disconnect(command, &QAction::triggered, nullptr, nullptr);
        ++seen;
    }
    EXPECT_GT(seen, 20);
}

TEST_P(KeyEquivalentsTest, aCommandThatIsNotOffered_isNotRunByItsKeys) {
    table().clearSelection();
    int count = 0;
    QObject::connect(actions().branch, &QAction::triggered, &controller.window(), [&] { ++count; });
    press(actions().branch->shortcut());
    EXPECT_EQ(count, 0);
}

TEST_P(KeyEquivalentsTest, afterSwitchingToAndFro_theKeysStillRunTheCommandOnce) {
    for (int turn = 0; turn < 3; ++turn)
        command(actions().find);
    controller.toggleDockIcon();
    controller.toggleDockIcon();
    controller.toggleDockIcon();
    settle();
    int count = 0;
    QObject::connect(actions().toggleCounting, &QAction::triggered, &controller.window(), [&] { ++count; });
    table().setFocus();
    press(actions().toggleCounting->shortcut());
    EXPECT_EQ(count, 1);
}
