// SPDX-License-Identifier: MIT
// Narrowing the rows by a text and by a least time, and what is shown again afterwards.
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumBar.h"
#include "platform/foundation/text/Translations.h"
#include "tests/interface/ProjectDesk.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace {

struct SearchTest : testing::Test, ProjectDesk {
    SearchTest() {
        mailNotesAndPaint();
        show();
    }

    void expand(const char* name) {
        table().expand(row(name));
        settle();
    }

    std::string cutoffShown() {
        return str(controller.window().findChild<QLabel*>(QStringLiteral("cutOffValueDisplay"))->text());
    }

    QLineEdit& field() { return controller.window().searchAppField(); }

    std::size_t rememberedRows() {
        return projects().mainItem()->expandedUUIDs().value_or(std::vector<Identity>()).size();
    }
};

} // namespace

TEST_F(SearchTest, aSearch_opensWhatItFinds) {
    type("in");
    EXPECT_EQ(outlineText(), "+Mail(Inbox), Paint");
    EXPECT_TRUE(controller.blockExpansionSaveWhileSearching());
}

TEST_F(SearchTest, idleTime_isFoundByTheNameThatPeopleReadAndByTheRecorded) {
    const Translations german({QStringLiteral("de")});
    account("Idle", 60);
    type("leerl");
    EXPECT_EQ(outlineText(), "Idle");
    EXPECT_EQ(str(sumShown()), "00:01:00");
    type("idle");
    EXPECT_EQ(outlineText(), "Idle");
    type("leere");
    EXPECT_EQ(outlineText(), "");
}

TEST_F(SearchTest, aWindow_isFoundByItsTitleAlone) {
    const Translations german({QStringLiteral("de")});
    account("Editor", 60, {{QStringLiteral("Idle"), 30}, {QStringLiteral("Other"), 30}});
    type("leerl");
    EXPECT_EQ(outlineText(), "");
}

TEST_F(SearchTest, aClearedSearch_opensWhatWasOpenBefore) {
    expand("Notes");
    type("i");
    type("in");
    type("");
    EXPECT_EQ(outlineText(), "Mail, +Notes(List, Todo), Paint");
    EXPECT_FALSE(controller.blockExpansionSaveWhileSearching());
}

TEST_F(SearchTest, whatIsFoldedWhileSearching_isOpenAgainAfterwards) {
    expand("Mail");
    type("in");
    table().collapse(row("Mail"));
    settle();
    type("");
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), Notes, Paint");
}

TEST_F(SearchTest, aDeletedTimer_isNotRememberedAsOpen) {
    expand("Mail");
    expand("Notes");
    EXPECT_EQ(rememberedRows(), 2U);
    select({row("Notes")});
    controller.tableViewDidReceiveDeleteKey(true);
    settle();
    controller.projectController().refreshProject();
    EXPECT_EQ(rememberedRows(), 1U);
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), Paint");
}

TEST_F(SearchTest, nothingFound_isSaid) {
    type("qqq");
    EXPECT_EQ(outlineText(), "");
    EXPECT_EQ(str(table().accessibleDescription()), "No timer matches the search.");
    EXPECT_EQ(str(sumShown()), "00:00:00");
}

TEST_F(SearchTest, aSearch_followsToTheProjectThatIsChosen) {
    addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("Notes")});
    type("in");
    choose(1);
    EXPECT_EQ(outlineText(), "+Mail(Inbox)");
    type("");
    EXPECT_EQ(outlineText(), "Mail, Notes");
    choose(0);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(SearchTest, escapeInTheField_keepsTheSearchAndGoesToTheRows) {
    controller.find();
    EXPECT_TRUE(field().hasFocus());
    QTest::keyClicks(&field(), QStringLiteral("in"));
    QTest::keyClick(&field(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(str(field().text()), "in");
    EXPECT_EQ(outlineText(), "+Mail(Inbox), Paint");
}

TEST_F(SearchTest, find_selectsWhatWasSearchedForBefore) {
    type("in");
    controller.find();
    QTest::keyClicks(&field(), QStringLiteral("no"));
    EXPECT_EQ(str(field().text()), "no");
}

TEST_F(SearchTest, setSearchString_narrowsAllTimersAlone) {
    controller.setSearchString(QStringLiteral("in"));
    EXPECT_EQ(outlineText(), "Mail, Paint");
    EXPECT_EQ(str(field().text()), "");
    EXPECT_FALSE(controller.blockExpansionSaveWhileSearching());
}

TEST_F(SearchTest, anApplicationThatBeginsToMatch_appears) {
    type("writ");
    front("Writer", "Letter");
    controller.timer().startTimer();
    seconds(5.5);
    EXPECT_EQ(outlineText(), "Writer");
    EXPECT_EQ(str(sumShown()), "00:00:05");
    EXPECT_EQ(str(table().accessibleDescription()), "");
}

TEST_F(SearchTest, aCutOffOfNinetyAndAHalfSeconds_readsAsNinety) {
    account("Edge", 90.5);
    account("Below", 90.4375);
    controller.setCutoffValue(90.5F);
    settle();
    EXPECT_EQ(cutoffShown(), "00:01:30");
    EXPECT_EQ(outlineText(), "Edge, Notes");
    controller.refreshTimeSum();
    EXPECT_EQ(str(sumShown()), "00:06:10") << "the total counts what is left out as well";
}

TEST_F(SearchTest, theSlider_cutsOffByTheKeyboard) {
    CutoffSlider& slider = controller.window().sumBar().cutoff();
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_End);
    settle();
    EXPECT_EQ(cutoffShown(), "08:00:00");
    EXPECT_EQ(outlineText(), "");
    EXPECT_EQ(str(table().accessibleDescription()), "No timer reaches the minimum time.");
    QTest::keyClick(&slider, Qt::Key_Home);
    settle();
    EXPECT_EQ(cutoffShown(), "00:00:00");
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(SearchTest, aTimerThatPassesTheLimit_appearsWithinAFewSeconds) {
    controller.setCutoffValue(35);
    controller.timer().startTimer();
    front("Paint", "Sketch");
    seconds(4.5);
    EXPECT_EQ(outlineText(), "Mail, Notes");
    seconds(4);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(SearchTest, whatPassedTheLimitWhileAnotherWasInFront_appearsToo) {
    controller.setCutoffValue(35);
    controller.timer().startTimer();
    front("Paint", "Sketch");
    seconds(5.5);
    front("Mail", "Inbox");
    seconds(4);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(SearchTest, aWindowWhoseTitleBeginsToMatch_isFoundAndOpened) {
    type("invoice");
    ASSERT_EQ(outlineText(), "");
    controller.timer().startTimer();
    front("Mail", "Inbox");
    seconds(3);
    ASSERT_EQ(outlineText(), "");
    fakes.windowList.windows.front().name = QStringLiteral("Invoice 12");
    seconds(4);
    EXPECT_EQ(outlineText(), "+Mail(Invoice 12)");
}

TEST_F(SearchTest, inAProject_aWindowThatBeginsToMatchAppearsToo) {
    addProject("Letters", {QStringLiteral("Mail"), QStringLiteral("Notes")});
    choose(1);
    type("invoice");
    controller.timer().startTimer();
    front("Mail", "Invoice 12");
    seconds(4);
    EXPECT_EQ(outlineText(), "+Mail(Invoice 12)");
    choose(0);
    EXPECT_EQ(outlineText(), "+Mail(Invoice 12)");
}

TEST_F(SearchTest, whatAppears_leavesSelectionAndFoldedRowsAsTheyAre) {
    type("in");
    ASSERT_EQ(outlineText(), "+Mail(Inbox), Paint");
    table().collapse(row("Mail"));
    select({row("Paint")});
    controller.timer().startTimer();
    front("Notes", "Invoice");
    seconds(4);
    EXPECT_EQ(outlineText(), "Mail, +Notes(Invoice), Paint");
    ASSERT_EQ(table().selectedItems().size(), 1U);
    EXPECT_EQ(str(table().selectedItems().front()->name()), "Paint");
}

TEST_F(SearchTest, whatAppearsAbove_leavesTheRowsThatOneLooksAtWhereTheyAre) {
    for (int i = 0; i < 60; ++i)
        account(qPrintable(QStringLiteral("Tool %1").arg(i, 2, 10, QLatin1Char('0'))), 100);
    account("Abacus", 30);
    controller.setCutoffValue(35);
    settle();
    table().scrollTo(row("Tool 40"), QAbstractItemView::PositionAtTop);
    settle();
    const int before = table().visualRect(row("Tool 40")).top();
    controller.timer().startTimer();
    front("Abacus", "Sum");
    seconds(9);
    ASSERT_TRUE(row("Abacus").isValid());
    EXPECT_EQ(table().visualRect(row("Tool 40")).top(), before);
}

TEST_F(SearchTest, theSumOfWhatIsFound_goesOnWhileItsRowIsFolded) {
    type("in");
    ASSERT_EQ(str(sumShown()), "00:00:50");
    table().collapse(row("Mail"));
    settle();
    controller.timer().startTimer();
    front("Mail", "Inbox");
    seconds(5.05);
    EXPECT_EQ(str(sumShown()), "00:00:55");
    front("Mail", "Invoice");
    seconds(5.05);
    EXPECT_EQ(str(sumShown()), "00:01:00") << "a window that has come counts too";
    EXPECT_EQ(outlineText(), "Mail, Paint");
}

TEST_F(SearchTest, nothingIsSearchedAnew_whileNothingHasChanged) {
    type("in");
    controller.timer().startTimer();
    front("Mail", "Inbox");
    seconds(5);
    Announcements told(controller.tracker(), {kTimeSetKey});
    seconds(60);
    EXPECT_EQ(told.count(), 0);
}

TEST_F(SearchTest, anEmptyOutline_blamesWhatEmptiesIt) {
    const auto said = [&] { return str(table().accessibleDescription()); };
    type("in");
    controller.setCutoffValue(3600);
    settle();
    EXPECT_EQ(outlineText(), "");
    EXPECT_EQ(said(), "No timer that matches the search reaches the minimum time.");
    type("qqq");
    EXPECT_EQ(said(), "No timer matches the search.");
    type("");
    EXPECT_EQ(said(), "No timer reaches the minimum time.");
    addProject("Nothing");
    choose(1);
    type("in");
    EXPECT_EQ(said().substr(0, 22), "This project is empty.");
    choose(0);
    alerts.answer = Alerts::Alternate;
    controller.clearTimers();
    settle();
    EXPECT_EQ(said().substr(0, 11), "Press Start");
}

TEST_F(SearchTest, aRowThatGoes_leavesTheSentenceThatFits) {
    type("paint");
    EXPECT_EQ(str(table().accessibleDescription()), "");
    select({row("Paint")});
    controller.tableViewDidReceiveDeleteKey(true);
    settle();
    EXPECT_EQ(str(table().accessibleDescription()), "No timer matches the search.");
}
