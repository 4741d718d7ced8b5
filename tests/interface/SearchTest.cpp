// SPDX-License-Identifier: MIT
// Narrowing what is shown, by a text and by a least time, and what is there again afterwards.
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumBar.h"
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

TEST_F(SearchTest, whatIsFound_isWhatWasThereWhenItWasTyped) {
    type("writ");
    front("Writer", "Letter");
    controller.timer().startTimer();
    seconds(5.5);
    EXPECT_EQ(outlineText(), "");
    type("write");
    EXPECT_EQ(outlineText(), "Writer");
    EXPECT_EQ(str(sumShown()), "00:00:05");
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
    EXPECT_EQ(str(table().accessibleDescription()), "No timer has as much time as you ask for.");
    QTest::keyClick(&slider, Qt::Key_Home);
    settle();
    EXPECT_EQ(cutoffShown(), "00:00:00");
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}
