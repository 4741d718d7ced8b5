// SPDX-License-Identifier: MIT
// Deleting rows, among all timers and in a project, and undoing it.
#include "tests/interface/ProjectDesk.h"

#include <gtest/gtest.h>

namespace {

struct DeletingTest : testing::Test, ProjectDesk {
    DeletingTest() {
        mailNotesAndPaint();
        addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("Paint")});
        show();
    }

    std::string account() { return str(textOf(model())); }
};

} // namespace

TEST_F(DeletingTest, inAProject_onlyTheMembershipGoesAndNobodyIsAsked) {
    choose(1);
    select({row("Paint")});
    QTest::keyClick(&table(), Qt::Key_Delete);
    settle();
    EXPECT_TRUE(alerts.questions.isEmpty());
    EXPECT_EQ(outlineText(), "Mail");
    EXPECT_EQ(membersOf(0), "Mail");
    choose(0);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
    EXPECT_EQ(str(sumShown()), "00:03:10") << "the time stays";
}

TEST_F(DeletingTest, aMembership_comesBackByUndo) {
    choose(1);
    select({row("Paint")});
    command(actions().deleteRows);
    command(actions().undo);
    EXPECT_EQ(membersOf(0), "Mail, Paint");
    choose(1);
    EXPECT_EQ(outlineText(), "Mail, Paint");
}

TEST_F(DeletingTest, forcedInAProject_theTimersThemselvesGo) {
    choose(1);
    select({row("Paint")});
    QTest::keyClick(&table(), Qt::Key_Delete, Qt::ShiftModifier);
    settle();
    EXPECT_TRUE(alerts.questions.isEmpty());
    choose(0);
    EXPECT_EQ(outlineText(), "Mail, Notes");
}

TEST_F(DeletingTest, kept_nothingGoes) {
    select({row("Notes")});
    command(actions().deleteRows);
    EXPECT_EQ(alerts.questions.size(), 1);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
    EXPECT_FALSE(actions().undo->isEnabled());
}

TEST_F(DeletingTest, deletedTimers_comeBackWithTheirWindowsTimesAndProjects) {
    alerts.answer = Alerts::Alternate;
    table().expandAllRows();
    const std::string before = account();
    select({row("Notes"), row("Inbox", row("Mail")), row("Paint")});
    command(actions().deleteRows);
    EXPECT_EQ(account(), "Mail 00:01:00") << "with one window left there is nothing to unfold";
    EXPECT_EQ(str(sumShown()), "00:01:00");
    command(actions().undo);
    table().expandAllRows();
    EXPECT_EQ(account(), before);
    EXPECT_EQ(str(sumShown()), "00:03:10");
    EXPECT_EQ(membersOf(0), "Mail, Paint");
    command(actions().redo);
    EXPECT_EQ(account(), "Mail 00:01:00");
    EXPECT_EQ(str(sumShown()), "00:01:00");
}

TEST_F(DeletingTest, aTimerThatCameAnewMeanwhile_getsTheOldTimeAddedByUndo) {
    select({row("Paint")});
    controller.tableViewDidReceiveDeleteKey(true);
    front("Paint", "Sketch");
    controller.timer().startTimer();
    seconds(10.5);
    controller.timer().stopTimer();
    command(actions().undo);
    EXPECT_EQ(str(row("Paint").siblingAtColumn(1).data().toString()), "00:00:40");
}

TEST_F(DeletingTest, withNothingSelected_theQuestionIsAskedAndRemovesNothing) {
    alerts.answer = Alerts::Alternate;
    controller.tableViewDidReceiveDeleteKey(false);
    EXPECT_EQ(alerts.questions.size(), 1);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
    EXPECT_FALSE(actions().undo->isEnabled());
}

TEST_F(DeletingTest, clearing_forgetsWhatCouldBeUndone) {
    select({row("Paint")});
    controller.tableViewDidReceiveDeleteKey(true);
    alerts.answer = Alerts::Alternate;
    command(actions().clearTimers);
    EXPECT_FALSE(actions().undo->isEnabled()) << "otherwise cleared time could come back";
}
