// SPDX-License-Identifier: MIT
// Timers that are copied and put into a project without the mouse.
#include "tests/interface/ProjectDesk.h"

#include <QClipboard>

#include <gtest/gtest.h>

namespace {

struct PastingTest : testing::Test, ProjectDesk {
    PastingTest() {
        mailNotesAndPaint();
        addProject("Poster");
        show();
        controller.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
        QGuiApplication::clipboard()->clear();
        settle();
    }

    void press(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        settle();
    }
};

} // namespace

TEST_F(PastingTest, copiedTimers_arePutIntoTheProjectAndTakenOutAgain) {
    table().setFocus();
    select({row("Mail"), row("Paint")});
    press(Qt::Key_C);
    sidebar().setFocus();
    choose(1);
    press(Qt::Key_V);
    EXPECT_EQ(membersOf(0), "Mail, Paint");
    EXPECT_EQ(outlineText(), "Mail, Paint") << "they are shown at once";
    command(actions().undo);
    EXPECT_EQ(membersOf(0), "");
    EXPECT_EQ(outlineText(), "");
}

TEST_F(PastingTest, withoutAProjectOrTimers_nothingCanBePasted) {
    EXPECT_FALSE(actions().paste->isEnabled());
    select({row("Mail")});
    command(actions().copy);
    EXPECT_FALSE(actions().paste->isEnabled()) << "all timers are no project";
    choose(1);
    EXPECT_TRUE(actions().paste->isEnabled());
    QGuiApplication::clipboard()->setText(QStringLiteral("words"));
    settle();
    EXPECT_FALSE(actions().paste->isEnabled());
}
