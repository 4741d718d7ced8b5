// SPDX-License-Identifier: MIT
#include "tests/fakes/Announcements.h"
#include "tests/fakes/Day.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TimerControlTest : public testing::Test {
protected:
    // Lets the first heartbeat pass, and registers for sleep.
    TimerControlTest() {
        m_control.registerForSystemSleep(m_day.fakes.power);
        m_day.advance(0);
    }

    std::string shown() { return str(std::exchange(m_day.display.told, {}).join(u", "_s)); }

    bool wasTimerRunning() { return m_day.fakes.defaults.boolForKey(kTKWasTimerRunning); }

    // What another process would read.
    bool isWrittenAsRunning() {
        const auto file = PropertyList::readFile(m_day.fakes.folders.settingsFile);
        return file && file->asDictionary() && file->asDictionary()->value(kTKWasTimerRunning).toBool();
    }

    Day m_day;
    TimerControl& m_control = m_day.control;
};

TEST_F(TimerControlTest, starting_ticksAtOnceAndShowsItselfInOrder) {
    const int menus = m_day.display.menus;
    m_control.startTimer();
    EXPECT_EQ(shown(), "ToolbarPause Pause, badge, menu icon");
    EXPECT_EQ(m_day.display.menus, menus + 1);
    EXPECT_EQ(m_day.display.timeSums, m_day.display.menus);
    EXPECT_TRUE(m_control.isRunning());
    EXPECT_TRUE(m_control.computeTimerIsValid());
    EXPECT_TRUE(isWrittenAsRunning());
    EXPECT_EQ(m_day.saves, 0);
}

TEST_F(TimerControlTest, stopping_writesAtOnceThatItStoppedShowsItAndSaves) {
    m_control.startTimer();
    shown();
    m_control.stopTimer();
    EXPECT_EQ(shown(), "ToolbarStart Start, no badge, menu icon");
    EXPECT_FALSE(m_control.isRunning());
    EXPECT_FALSE(m_control.computeTimerIsValid());
    EXPECT_FALSE(isWrittenAsRunning());
    EXPECT_TRUE(QFile::exists(m_day.fakes.folders.settingsFile));
    EXPECT_EQ(m_day.saves, 1);
}

TEST_F(TimerControlTest, toggling_startsAndStops) {
    m_control.toggleCounting();
    EXPECT_TRUE(m_control.isRunning());
    m_control.toggleCounting();
    EXPECT_FALSE(m_control.isRunning());
}

TEST_F(TimerControlTest, eachTick_refreshesTheSumAndTheMenus) {
    m_control.startTimer();
    const int sums = m_day.display.timeSums;
    const int menus = m_day.display.menus;
    m_day.advance(1);
    EXPECT_EQ(m_day.display.timeSums - sums, 10);
    EXPECT_EQ(m_day.display.menus - menus, 10);
}

TEST_F(TimerControlTest, idleness_includesTheMinuteItself) {
    m_day.fakes.defaults.setObject(kMinutesUntilIdle, 5);
    m_day.fakes.idleTime.answer = std::chrono::nanoseconds(std::int64_t(299) << 30);
    EXPECT_FALSE(m_control.isIdle());
    m_day.fakes.idleTime.answer = std::chrono::nanoseconds(std::int64_t(300) << 30);
    m_day.advance(301 * 1.08);
    EXPECT_TRUE(m_control.isIdle());
}

TEST_F(TimerControlTest, withNoMinutes_theUserIsAlwaysIdle) {
    m_day.fakes.defaults.setObject(kMinutesUntilIdle, 0);
    m_day.fakes.idleTime.touch();
    EXPECT_TRUE(m_control.isIdle());
}

TEST_F(TimerControlTest, withoutIdleDetection_nobodyIsIdleAndNobodyIsAsked) {
    m_day.fakes.defaults.setObject(kEnableIdleDetection, false);
    m_day.fakes.idleTime.setIdle(std::chrono::hours(5));
    const int reads = m_day.fakes.idleTime.reads;
    EXPECT_FALSE(m_control.isIdle());
    EXPECT_EQ(m_day.fakes.idleTime.reads, reads);
}

TEST_F(TimerControlTest, aRefusedStart_leavesEverythingUntouched) {
    class Untrusted : public TimeActivator {
    public:
        using TimeActivator::TimeActivator;
        bool isAXEnabled() override { return false; }
    };
    Day day([](TimeTracker& tracker, ActivityServices& services) {
        return std::make_unique<Untrusted>(tracker, services);
    });
    day.advance(0);
    day.control.startTimer();
    EXPECT_TRUE(day.display.told.isEmpty());
    EXPECT_FALSE(day.control.computeTimerIsValid());
    EXPECT_FALSE(day.fakes.defaults.boolForKey(kTKWasTimerRunning));
    EXPECT_EQ(day.trustChecks, 1);
}

TEST_F(TimerControlTest, aSleepQueryThatIsRefused_stopsAndRestartsTheTimerAndSavesOnce) {
    m_control.startTimer();
    shown();
    m_day.fakes.power.aboutToSleep();
    EXPECT_FALSE(m_control.isRunning());
    m_day.fakes.power.wake();
    EXPECT_TRUE(m_control.isRunning());
    EXPECT_TRUE(wasTimerRunning());
    EXPECT_EQ(m_day.saves, 1);
    EXPECT_EQ(shown(), "ToolbarStart Start, no badge, menu icon, ToolbarPause Pause, badge, menu icon");
}

TEST_F(TimerControlTest, sleep_isNotCreditedAndTheTimerRunsAfterIt) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(10);
    m_day.asleep(3600);
    EXPECT_EQ(m_day.saves, 1);
    m_day.seconds(10);
    EXPECT_EQ(m_day.tree(), "Mail 20 [Inbox 20]");
}

TEST_F(TimerControlTest, aBatteryThatGoesEmptyAsleep_leavesATimerThatRunsAtTheNextLaunch) {
    m_day.start();
    m_day.seconds(10);
    m_day.fakes.power.aboutToSleep();
    m_day.fakes.power.aboutToSleep();
    EXPECT_FALSE(m_control.isRunning());
    EXPECT_TRUE(isWrittenAsRunning());
}

TEST_F(TimerControlTest, aPausedTimer_doesNotLookAsIfItRanWhenTheSessionComesBack) {
    m_day.start();
    m_day.stop();
    m_control.sessionDidResignActive();
    m_control.sessionDidBecomeActive();
    EXPECT_FALSE(m_control.computeTimerIsValid());
    m_control.willPowerOff();
    EXPECT_FALSE(m_day.fakes.defaults.boolForKey(kStartTicklogOnNextLaunch));
}

TEST_F(TimerControlTest, sleepWhileStopped_startsNothingAfterwards) {
    m_day.asleep(3600);
    m_day.advance(60);
    EXPECT_FALSE(m_control.isRunning());
    EXPECT_EQ(m_day.saves, 0);
}

TEST_F(TimerControlTest, sleepWhileIdle_endsTheIdleStateAndBooksNothingForTheNight) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.idle(1000);
    const double idle = m_day.secondsOf("Idle");
    m_day.asleep(8 * 3600);
    m_day.seconds(10);
    EXPECT_NEAR(m_day.secondsOf("Idle"), idle, 0.15);
}

TEST_F(TimerControlTest, aWakeUpThatWentMissing_isMadeUpForByTheHeartbeat) {
    m_day.start();
    m_day.fakes.power.aboutToSleep();
    m_day.fakes.clock.sleepFor(std::chrono::hours(1));
    m_day.advance(14.9);
    EXPECT_FALSE(m_control.isRunning());
    m_day.advance(0.1);
    EXPECT_TRUE(m_control.isRunning());
}

TEST_F(TimerControlTest, aTimerThatRanAtTheEnd_runsRightAfterTheLaunch) {
    Day day;
    day.fakes.defaults.setObject(kTKWasTimerRunning, true);
    EXPECT_FALSE(day.control.isRunning());
    day.advance(0);
    EXPECT_TRUE(day.control.isRunning());
    EXPECT_TRUE(day.control.computeTimerIsValid());
}

TEST_F(TimerControlTest, aTimerThatDidNotRun_staysStoppedWhateverTheHeartbeat) {
    m_day.advance(60);
    EXPECT_FALSE(m_control.isRunning());
    EXPECT_EQ(shown(), "");
}

TEST_F(TimerControlTest, ticksThatWereDropped_comeBackWithinTheHeartbeat) {
    m_control.startTimer();
    m_control.destroyComputeTimer();
    m_day.advance(15);
    EXPECT_TRUE(m_control.computeTimerIsValid());
}

TEST_F(TimerControlTest, aHeartbeatWhileAllIsWell_showsNothingAgain) {
    m_control.startTimer();
    shown();
    m_day.advance(60);
    EXPECT_EQ(shown(), "");
}

TEST_F(TimerControlTest, leavingTheSession_stopsTheTicksAndSavesUntilTheHeartbeatGoesOn) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(9.9);
    m_control.sessionDidResignActive();
    EXPECT_EQ(m_day.saves, 1);
    EXPECT_TRUE(m_control.isRunning());
    m_day.seconds(5);
    EXPECT_EQ(m_day.tree(), "Mail 9.9 [Inbox 9.9]");
    m_day.seconds(5.1);
    // The first tick credits the gap.
    EXPECT_EQ(m_day.tree(), "Mail 20 [Inbox 20]");
}

TEST_F(TimerControlTest, comingBackToTheSession_bringsTheTicksBack) {
    m_day.start();
    m_control.sessionDidResignActive();
    m_control.sessionDidBecomeActive();
    EXPECT_TRUE(m_control.computeTimerIsValid());
}

TEST_F(TimerControlTest, powerOff_remembersARunningTimerForTheNextLaunch) {
    m_control.startTimer();
    m_control.willPowerOff();
    EXPECT_TRUE(m_day.fakes.defaults.boolForKey(kStartTicklogOnNextLaunch));
    EXPECT_EQ(m_day.saves, 1);
    EXPECT_FALSE(m_control.computeTimerIsValid());
}

TEST_F(TimerControlTest, powerOffWhileStopped_remembersNothingAndSaves) {
    m_control.willPowerOff();
    EXPECT_FALSE(m_day.fakes.defaults.boolForKey(kStartTicklogOnNextLaunch));
    EXPECT_EQ(m_day.saves, 1);
}

TEST_F(TimerControlTest, powerEvents_areRegisteredForOnce) {
    m_control.registerForSystemSleep(m_day.fakes.power);
    EXPECT_EQ(m_day.fakes.power.registrations, 1);
}

TEST_F(TimerControlTest, aSystemThatTellsNothingOfItsPower_isReportedOnStandardOutput) {
    Day day;
    day.fakes.power.tells = false;
    day.control.registerForSystemSleep(day.fakes.power);
    EXPECT_EQ(str(day.fakes.log.printed.join(u'\n')), "IORegisterForSystemPower failed");
}

TEST_F(TimerControlTest, setToRun_startsTheTrackerWithoutATickOrASign) {
    m_control.setToRun();
    EXPECT_TRUE(m_control.isRunning());
    EXPECT_FALSE(m_control.computeTimerIsValid());
    EXPECT_EQ(shown(), "");
}

TEST_F(TimerControlTest, aSleepThatNobodyTold_isNotCreditedEither) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(40);
    m_day.fakes.clock.sleepFor(std::chrono::hours(8));
    m_day.seconds(20);
    EXPECT_EQ(m_day.tree(), "Mail 60 [Inbox 60]");
}

TEST_F(TimerControlTest, aWakeUpAfterALongAbsence_booksNoIdleTimeAgain) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(40);
    m_day.idle(1800);
    const auto before = m_day.tree();
    m_day.fakes.power.aboutToSleep();
    m_day.fakes.clock.sleepFor(std::chrono::hours(8));
    // Opening a lid is no input.
    m_day.fakes.power.wake();
    EXPECT_EQ(m_day.tree(), before);
}

} // namespace
