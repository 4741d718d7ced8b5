// SPDX-License-Identifier: MIT
// What the history and the store have of time that waits for a window to say which program it belongs to.
#include "tests/unit/HistoryScene.h"

namespace {

class UndecidedHistoryTest : public HistoryTest {
protected:
    UndecidedHistoryTest() {
        day.start();
        day.front("Mail", "Inbox");
        day.seconds(10);
        scene.save();
        day.frontUndecided("Suite", "Text Import");
    }

    double sumOf(const Day& counted) {
        double sum = 0;
        for (const auto& app : counted.tracker.fullTimeSet())
            sum += app->activeTime();
        return sum;
    }
};

TEST_F(UndecidedHistoryTest, aSave_decidesNothing) {
    day.seconds(20);
    scene.save();
    EXPECT_EQ(day.tree(), "Mail 10 [Inbox 10]");
    day.seconds(10);
    day.turnOut("Suite", "Calc");
    day.seconds(1);
    EXPECT_EQ(day.tree(), "Calc 31 [Text Import 31], Mail 10 [Inbox 10]");
    scene.save();
    EXPECT_EQ(relaunched(scene)->day.tree(), "Calc 31 [Text Import 31], Mail 10 [Inbox 10]");
}

TEST_F(UndecidedHistoryTest, aKillMeanwhile_costsAQuarterOfAMinuteAtMost) {
    day.seconds(40);
    const auto second = relaunched(scene);
    EXPECT_NEAR(sumOf(second->day), 42.5, 7.6) << second->day.tree();
    EXPECT_EQ(second->day.secondsOf("Suite"), second->day.secondsOf("Suite", "Text Import"));
}

TEST_F(UndecidedHistoryTest, aKillAfterASaveMeanwhile_losesAndDoublesNothing) {
    day.seconds(20);
    scene.save();
    EXPECT_NEAR(sumOf(relaunched(scene)->day), 30, 0.2);
    day.seconds(20);
    scene.save();
    scene.save();
    EXPECT_NEAR(sumOf(relaunched(scene)->day), 50, 0.2);
}

TEST_F(UndecidedHistoryTest, aKillAfterItTurnedOut_leavesNoTraceOfWhatItWasNot) {
    day.seconds(40);
    day.turnOut("Suite", "Calc");
    day.seconds(16);
    const auto second = relaunched(scene);
    EXPECT_EQ(second->day.tree().find("Suite"), std::string::npos) << second->day.tree();
    EXPECT_GE(second->day.secondsOf("Calc", "Text Import"), 41);
}

TEST_F(UndecidedHistoryTest, theRowsOfIt_becomeThoseOfTheProgramThatItTurnsOutToBe) {
    day.seconds(20);
    day.front("Mail", "Inbox");
    day.seconds(20);
    day.frontUndecided("Suite", "Text Import");
    day.seconds(1);
    day.turnOut("Suite", "Calc");
    day.seconds(1);
    day.stop();
    const std::string diary = scene.diary();
    EXPECT_EQ(HistoryDiary::flaws(scene.path()), QStringList());
    EXPECT_EQ(diary, "Mail [Inbox] 10, Calc [Text Import] 20, Mail [Inbox] 20, Calc [Text Import] 2");
}

TEST_F(UndecidedHistoryTest, theEndOfTheProgram_leavesItWhatItWasSoFar) {
    day.seconds(20);
    day.control.willPowerOff();
    EXPECT_EQ(day.tree(), "Mail 10 [Inbox 10], Suite 20 [Text Import 20]");
}

TEST_F(UndecidedHistoryTest, switchingTheHistoryOffMeanwhile_losesNothing) {
    day.seconds(20);
    day.fakes.defaults.setObject(kHistoryDays, -1);
    day.advance(0.1);
    day.fakes.defaults.setObject(kHistoryDays, 0);
    day.seconds(5);
    day.turnOut("Suite", "Calc");
    day.seconds(20);
    EXPECT_NEAR(day.secondsOf("Calc", "Text Import"), 45.1, 0.1);
    EXPECT_EQ(scene.diary().find("Suite"), std::string::npos);
}

} // namespace
