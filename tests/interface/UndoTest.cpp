// SPDX-License-Identifier: MIT
// Undoing names and deletions, one after the other and with other events in between.
#include "tests/interface/ProjectDesk.h"

#include <gtest/gtest.h>

namespace {

struct UndoTest : testing::Test, ProjectDesk {
    UndoTest() {
        mailNotesAndPaint();
        addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("Todo")});
        show();
    }

    void rename(const QModelIndex& index, const char* name) {
        model().setData(index, QString::fromUtf8(name));
        settle();
    }

    void remove(const QModelIndex& index) {
        select({index});
        controller.tableViewDidReceiveDeleteKey(true);
        settle();
    }

    // The names shown and the seconds.
    std::string times() {
        QStringList rows;
        for (int row = 0; row < model().rowCount(); ++row) {
            const auto item = TKOutlineDisplayView::itemAt(model().index(row, 0));
            rows << QStringLiteral("%1 %2").arg(item->renamedName()).arg(int(item->activeTime()));
        }
        return str(rows.join(QStringLiteral(", ")));
    }

    void undo() { command(actions().undo); }

    void redo() { command(actions().redo); }
};

} // namespace

TEST_F(UndoTest, aNameGivenBeforeADeletion_canBeTakenBackAfterIt) {
    rename(row("Paint"), "Sketches");
    remove(row("Sketches"));
    EXPECT_EQ(outlineText(), "Mail, Notes");
    undo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Sketches");
    undo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
    redo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Sketches");
    redo();
    EXPECT_EQ(outlineText(), "Mail, Notes");
    undo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Sketches");
}

TEST_F(UndoTest, aWindowsNameGivenBeforeItsApplicationWent_canBeTakenBack) {
    table().expand(row("Notes"));
    rename(row("List", row("Notes")), "Shopping");
    remove(row("Notes"));
    undo();
    table().expand(row("Notes"));
    settle();
    EXPECT_EQ(outlineText(), "Mail, +Notes(Shopping, Todo), Paint");
    undo();
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
}

TEST_F(UndoTest, aWindowsNameGivenBeforeTheWindowWent_canBeTakenBack) {
    account("Web", 10, {{QStringLiteral("A"), 5}, {QStringLiteral("B"), 4}, {QStringLiteral("C"), 1}});
    table().expand(row("Web"));
    rename(row("A", row("Web")), "Articles");
    remove(row("Articles", row("Web")));
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint, +Web(B, C)");
    undo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint, +Web(Articles, B, C)");
    undo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint, +Web(A, B, C)");
}

TEST_F(UndoTest, aNameGivenInAProject_canBeTakenBackAmongAllTimers) {
    choose(1);
    rename(row("Todo"), "Plans");
    EXPECT_EQ(outlineText(), "Mail, Plans");
    choose(0);
    undo();
    table().expand(row("Notes"));
    settle();
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
    choose(1);
    EXPECT_EQ(outlineText(), "Mail, Todo");
}

TEST_F(UndoTest, aNameTakenBackWhileItIsSearchedFor_isSummedAnew) {
    rename(row("Paint"), "Sketches");
    type("sket");
    EXPECT_EQ(str(sumShown()), "00:00:30");
    undo();
    EXPECT_EQ(str(sumShown()), "00:00:00");
    type("pain");
    EXPECT_EQ(outlineText(), "Paint");
}

TEST_F(UndoTest, aNameGivenToAFrozenTimer_isTakenBackFromThatOneAlone) {
    controller.timer().startTimer();
    front("Paint", "Sketch");
    seconds(5.5);
    const auto frozen = TKOutlineDisplayView::itemAt(row("Paint"));
    controller.branchNode(frozen->node());
    settle();
    seconds(5);
    const QString nameFrozen = frozen->renamedName();
    rename(row(qPrintable(nameFrozen)), "First draft");
    undo();
    EXPECT_EQ(frozen->renamedName(), nameFrozen);
    EXPECT_TRUE(row("Paint").isValid()) << "what goes on counting keeps its name";
}

TEST_F(UndoTest, aNameGivenBeforeAFreeze_isTakenBackFromTheFrozenTimer) {
    controller.timer().startTimer();
    front("Paint", "Sketch");
    seconds(5.5);
    const auto frozen = TKOutlineDisplayView::itemAt(row("Paint"));
    rename(row("Paint"), "First draft");
    controller.branchNode(frozen->node());
    settle();
    remove(row("Paint"));
    seconds(1);
    for (int step = 0; step < 3; ++step)
        undo();
    EXPECT_EQ(str(frozen->renamedName()), "Paint");
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(UndoTest, windowsThatShareAnIdentity_areRenamedAndDeletedOneByOne) {
    account("Web", 10, {{QStringLiteral("Page"), 5}, {QStringLiteral("Other"), 4}});
    account("Xed", 10, {{QStringLiteral("Page"), 5}, {QStringLiteral("Other"), 4}});
    table().expandAllRows();
    const std::string before = outlineText();
    rename(row("Page", row("Xed")), "Mine");
    EXPECT_EQ(outlineText(),
              "+Mail(Drafts, Inbox), +Notes(List, Todo), Paint, +Web(Other, Page), +Xed(Mine, Other)");
    undo();
    EXPECT_EQ(outlineText(), before);
    remove(row("Page", row("Xed")));
    remove(row("Other", row("Web")));
    EXPECT_EQ(str(textOf(model())).find("Page"), std::string::npos) << "each has one window left";
    undo();
    undo();
    table().expandAllRows();
    settle();
    EXPECT_EQ(outlineText(), before);
}

TEST_F(UndoTest, manyDeletions_comeBackInTurn) {
    const std::string before = str(textOf(model()));
    for (const char* name : {"Paint", "Mail", "Notes"})
        remove(row(name));
    EXPECT_EQ(outlineText(), "");
    for (int step = 0; step < 3; ++step)
        undo();
    EXPECT_EQ(str(textOf(model())), before);
    EXPECT_EQ(membersOf(0), "Mail, Todo");
    EXPECT_FALSE(actions().undo->isEnabled());
    for (int step = 0; step < 3; ++step)
        redo();
    EXPECT_EQ(outlineText(), "");
}

TEST_F(UndoTest, aDeletionTakenBackDuringASearch_isNarrowedLikeTheRest) {
    remove(row("Paint"));
    type("in");
    EXPECT_EQ(outlineText(), "+Mail(Inbox)");
    undo();
    EXPECT_EQ(outlineText(), "+Mail(Inbox), Paint");
    type("");
    remove(row("Notes"));
    type("in");
    undo();
    EXPECT_EQ(outlineText(), "+Mail(Inbox), Paint") << "Notes has come back, and does not match";
    type("");
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(UndoTest, aFreezing_canBeTakenBackAndMadeAgain) {
    controller.timer().startTimer();
    front("Paint", "Sketch");
    seconds(5.05);
    select({row("Paint")});
    command(actions().branch);
    seconds(2);
    ASSERT_EQ(times(), "Mail 60, Notes 100, Paint 2, Paint 35");
    undo();
    EXPECT_EQ(times(), "Mail 60, Notes 100, Paint 37");
    EXPECT_FALSE(actions().undo->isEnabled());
    redo();
    EXPECT_EQ(times(), "Mail 60, Notes 100, Paint 0, Paint 37");
    undo();
    seconds(1);
    EXPECT_EQ(times(), "Mail 60, Notes 100, Paint 38");
}

TEST_F(UndoTest, allOfAProjectFrozen_isTakenBackAtOnceAndWithItsMembers) {
    choose(1);
    command(actions().branchProject);
    EXPECT_TRUE(TKOutlineDisplayView::itemAt(row("Mail"))->branched());
    EXPECT_TRUE(TKOutlineDisplayView::itemAt(row("Todo"))->branched());
    undo();
    EXPECT_EQ(outlineText(), "Mail, Todo");
    EXPECT_EQ(membersOf(0), "Mail, Todo");
    choose(0);
    EXPECT_EQ(times(), "Mail 60, Notes 100, Paint 30");
    redo();
    EXPECT_TRUE(TKOutlineDisplayView::itemAt(row("Mail"))->branched());
    choose(1);
    EXPECT_EQ(outlineText(), "Mail, Todo");
}

TEST_F(UndoTest, whatWasDoneToAFrozenTimer_isTakenBackAndMadeAgainInTurn) {
    addProject("Letters");
    select({row("Mail")});
    command(actions().branch);
    rename(row("Mail"), "January");
    dropTimers({TKOutlineDisplayView::itemAt(row("January"))->name()}, -1, at(2));
    remove(row("January"));
    const std::string after = outlineText();
    for (int step = 0; step < 4; ++step)
        undo();
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
    EXPECT_EQ(membersOf(0), "Todo, Mail");
    EXPECT_FALSE(actions().undo->isEnabled());
    for (int step = 0; step < 4; ++step)
        redo();
    EXPECT_EQ(outlineText(), after);
    EXPECT_EQ(membersOf(0), "Todo");
    undo();
    EXPECT_EQ(membersOf(0), "Todo, Mail (Frozen 1/5/26)");
    EXPECT_EQ(membersOf(1), "Mail (Frozen 1/5/26)");
}

TEST_F(UndoTest, aFreezingThatCannotBeTakenBack_makesWayForWhatWasDoneBefore) {
    rename(row("Paint"), "Sketches");
    select({row("Mail")});
    command(actions().branch);
    controller.tracker().removeUUIDs({*TKOutlineDisplayView::itemAt(row("Mail"))->uuid()});
    settle();
    undo();
    EXPECT_EQ(outlineText(), "Notes, Paint");
    EXPECT_FALSE(actions().undo->isEnabled());
    redo();
    EXPECT_EQ(outlineText(), "Notes, Sketches");
    EXPECT_FALSE(actions().redo->isEnabled());
}

TEST_F(UndoTest, freezingNothing_isNoStep) {
    select({row("Mail")});
    command(actions().branch);
    undo();
    redo();
    select({row("Mail")});
    command(actions().branch);
    undo();
    EXPECT_FALSE(actions().undo->isEnabled()) << "the frozen timer was frozen once";
}
