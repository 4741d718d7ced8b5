// SPDX-License-Identifier: MIT
// Hiding timers with little time.
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumBar.h"
#include "tests/interface/ProjectDesk.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace {

struct CutoffTest : testing::Test, ProjectDesk {
    CutoffTest() {
        mailNotesAndPaint();
        show();
    }

    void cutOff(float seconds) {
        controller.setCutoffValue(seconds);
        settle();
    }

    CutoffSlider& slider() { return controller.window().sumBar().cutoff(); }

    std::string mode() {
        return str(controller.window().findChild<QLabel*>(QStringLiteral("timeSumCaption"))->text());
    }
};

} // namespace

TEST_F(CutoffTest, zeroOrLess_hidesNothing) {
    account("Blink", 0);
    for (const float nothing : {0.0F, -30.0F}) {
        cutOff(nothing);
        EXPECT_EQ(outlineText(), "Blink, Mail, Notes, Paint") << nothing;
    }
}

TEST_F(CutoffTest, exactlyAsMuchTime_stays) {
    account("Nearly", 59.5);
    cutOff(60);
    EXPECT_EQ(outlineText(), "Mail, Notes");
}

TEST_F(CutoffTest, anApplicationThatHasEnough_showsAllItsWindows) {
    cutOff(50);
    table().expandAllRows();
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), +Notes(List, Todo)") << "though the windows have less";
}

TEST_F(CutoffTest, anApplicationWithTooLittle_standsForTheWindowThatHasEnough) {
    account("Odd", 5, {{QStringLiteral("Long"), 80}, {QStringLiteral("Short"), 1}});
    cutOff(70);
    table().expandAllRows();
    EXPECT_EQ(outlineText(), "+Notes(List, Todo), +Odd(Long)");
    EXPECT_EQ(str(row("Odd").siblingAtColumn(1).data().toString()), "00:00:05") << "with its own time";
}

TEST_F(CutoffTest, aSearch_narrowsWhatTheCutOffLeaves) {
    type("in");
    EXPECT_EQ(outlineText(), "+Mail(Inbox), Paint");
    cutOff(25);
    EXPECT_EQ(outlineText(), "Paint");
    type("");
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(CutoffTest, aSelectedRowThatIsCutOff_isSelectedNoLonger) {
    select({row("Paint")});
    EXPECT_EQ(mode(), "Selected");
    cutOff(45);
    EXPECT_EQ(outlineText(), "Mail, Notes");
    EXPECT_EQ(mode(), "Total");
    EXPECT_EQ(str(sumShown()), "00:03:10");
    EXPECT_FALSE(actions().deleteRows->isEnabled());
}

TEST_F(CutoffTest, aSelectedRowThatStays_staysSelected) {
    select({row("Notes")});
    cutOff(45);
    EXPECT_EQ(str(sumShown()), "00:01:40");
    cutOff(0);
    EXPECT_EQ(mode(), "Selected");
    EXPECT_EQ(table().selectionModel()->selectedRows(), QModelIndexList{row("Notes")});
}

TEST_F(CutoffTest, aProject_showsAllItsTimersWhateverTheirTime) {
    addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("Paint")});
    cutOff(8 * 60 * 60);
    EXPECT_EQ(outlineText(), "");
    choose(1);
    EXPECT_EQ(outlineText(), "Mail, Paint");
    choose(0);
    EXPECT_EQ(outlineText(), "");
}

TEST_F(CutoffTest, inAProject_noLimitIsShownBecauseNoneIsInForce) {
    addProject("Poster", {QStringLiteral("Mail")});
    cutOff(60);
    const auto& value = *controller.window().findChild<QLabel*>(QStringLiteral("cutOffValueDisplay"));
    EXPECT_EQ(str(value.text()), "00:01:00");
    choose(1);
    EXPECT_EQ(str(value.text()), "");
    EXPECT_FALSE(controller.window().sumBar().cutoff().isEnabled());
    EXPECT_EQ(str(controller.window().sumBar().cutoff().accessibleDescription()),
              "A project shows all its timers, however little time they have");
    choose(0);
    EXPECT_EQ(str(value.text()), "00:01:00");
    EXPECT_TRUE(controller.window().sumBar().cutoff().isEnabled());
}

TEST_F(CutoffTest, aTimerThatHasGrownEnough_isShownWhenTheCutOffIsAskedForAgain) {
    cutOff(45);
    front("Paint", "Sketch");
    controller.timer().startTimer();
    seconds(20);
    cutOff(45);
    EXPECT_EQ(outlineText(), "Mail, Notes, Paint");
}

TEST_F(CutoffTest, whatWasOpen_isStillRememberedAsOpen) {
    table().expand(row("Mail"));
    settle();
    cutOff(8 * 60 * 60);
    cutOff(0);
    controller.projectController().refreshProject();
    EXPECT_EQ(outlineText(), "+Mail(Drafts, Inbox), Notes, Paint");
}

TEST_F(CutoffTest, theNextStart_showsEverything) {
    slider().setValue(slider().maximum());
    settle();
    controller.saveSettingsToDisk();
    FakeAlerts none;
    TKController next(fakes.platform, none, [](int) {});
    next.displayMainWindow();
    settle();
    EXPECT_EQ(next.window().mainTable().model()->rowCount(), 3);
    EXPECT_EQ(next.window().sumBar().cutoff().value(), 0);
    EXPECT_EQ(str(next.window().findChild<QLabel*>(QStringLiteral("cutOffValueDisplay"))->text()),
              "00:00:00");
}

TEST_F(CutoffTest, theMouseAlone_movesTheSlider) {
    QTest::mouseClick(&slider(), Qt::LeftButton, {}, QPoint(slider().width() - 3, slider().height() / 2));
    settle();
    EXPECT_GT(slider().seconds(), 0);
    EXPECT_EQ(str(controller.window().findChild<QLabel*>(QStringLiteral("cutOffValueDisplay"))->text()),
              str(TimeTracker::timeStringForDouble(double(slider().seconds()))));
}
