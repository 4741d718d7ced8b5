// SPDX-License-Identifier: MIT
// Keys that mean one thing in a text field and another in the rows beside it.
#include "tests/interface/ProjectDesk.h"

#include <gtest/gtest.h>

namespace {

struct FieldKeysTest : testing::Test, ProjectDesk {
    FieldKeysTest() {
        mailNotesAndPaint();
        addProject("Poster", {QStringLiteral("Mail")});
        show();
        controller.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&controller.window()));
        // If a key deletes by mistake, the deletion must succeed and be noticed.
        alerts.answer = Alerts::Alternate;
        select({row("Paint")});
    }

    // As the desktop delivers a key: to the shortcuts first.
    void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&widget, key, modifiers);
        settle();
    }

    QLineEdit& search() { return controller.window().searchAppField(); }

    QLineEdit& editName() {
        table().setFocus();
        table().setCurrentIndex(row("Notes"));
        command(actions().rename);
        return *table().findChild<QLineEdit*>(QStringLiteral("programEditor"));
    }

    void expectAllThere() {
        EXPECT_EQ(model().rowCount(), 3);
        EXPECT_EQ(projects().count(), 1U);
        EXPECT_EQ(alerts.questions, QStringList());
    }
};

} // namespace

TEST_F(FieldKeysTest, controlF_goesToTheSearchFromAnywhere) {
    for (QWidget* from : {static_cast<QWidget*>(&table()), static_cast<QWidget*>(&sidebar())}) {
        from->setFocus();
        press(*from, Qt::Key_F, Qt::ControlModifier);
        EXPECT_TRUE(search().hasFocus()) << str(from->objectName());
    }
}

TEST_F(FieldKeysTest, deletingInTheSearch_deletesNoTimers) {
    search().setFocus();
    for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ShiftModifier}) {
        press(search(), Qt::Key_Delete, modifiers);
        expectAllThere();
    }
}

TEST_F(FieldKeysTest, deletingInAnEditor_deletesNoTimers) {
    QLineEdit& field = editName();
    field.setCursorPosition(0);
    press(field, Qt::Key_Delete);
    EXPECT_EQ(str(field.text()), "otes");
    field.selectAll();
    press(field, Qt::Key_Delete, Qt::ShiftModifier);
    press(field, Qt::Key_Delete);
    press(field, Qt::Key_Escape);
    expectAllThere();
    EXPECT_TRUE(row("Notes").isValid());
}

TEST_F(FieldKeysTest, undoInAnEditor_takesBackTypingAlone) {
    model().setData(row("Paint"), QStringLiteral("Sketches"));
    settle();
    QLineEdit& field = editName();
    QTest::keyClicks(&field, QStringLiteral("Ideas"));
    for (int i = 0; i < 20; ++i)
        press(field, Qt::Key_Z, Qt::ControlModifier);
    press(field, Qt::Key_Escape);
    EXPECT_TRUE(row("Sketches").isValid()) << "the name given before is not what was typed";
}

TEST_F(FieldKeysTest, controlEInTheSearch_exportsWhatIsShown) {
    int exports = 0;
    QAction& command = *actions().exportShown;
    QObject::disconnect(&command, &QAction::triggered, nullptr, nullptr);
    QObject::connect(&command, &QAction::triggered, &command, [&] { ++exports; });
    search().setFocus();
    press(search(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(exports, 1);
}

TEST_F(FieldKeysTest, selectingAllInTheSearch_selectsItsTextAlone) {
    type("i");
    search().setFocus();
    press(search(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(str(search().selectedText()), "i");
    EXPECT_FALSE(table().selectionModel()->selectedRows().size() > 1);
}

TEST_F(FieldKeysTest, returnInTheSearch_opensNoEditor) {
    search().setFocus();
    press(search(), Qt::Key_Return);
    EXPECT_EQ(table().findChild<QLineEdit*>(QStringLiteral("programEditor")), nullptr);
}

TEST_F(FieldKeysTest, deletingWhileAProjectIsNamed_deletesNoProject) {
    choose(1);
    command(actions().renameProject);
    ASSERT_NE(editor(), nullptr);
    press(*editor(), Qt::Key_Delete);
    press(*editor(), Qt::Key_Delete);
    press(*editor(), Qt::Key_Delete, Qt::ShiftModifier);
    press(*editor(), Qt::Key_Escape);
    choose(0);
    expectAllThere();
    EXPECT_EQ(sidebarText(), "[All Timers], Poster");
}
