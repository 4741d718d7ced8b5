// SPDX-License-Identifier: MIT
// When ticks come where the loop tells of its waits, and that they then leave the same account as steady ones.
#include "Classes/engine/Ticks.h"

#include "Classes/engine/TimeActivatorScreenCapture.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

// A display whose times can be seen or not.
class SeenDisplay : public RecordingTimerDisplay {
public:
    std::optional<Instant> nextTurn() const override { return turn ? turn() : std::nullopt; }

    std::function<std::optional<Instant>()> turn;
};

// Days whose loop tells of its waits, on a desktop that tells of input.
class TicksTest : public testing::Test {
protected:
    TicksTest() {
        m_day.fakes.idleTime.tells = true;
        m_day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
    }

    // Whoever asks is an event, too.
    std::string account() {
        m_day.fakes.runLoop.wake();
        return m_day.tree();
    }

    // How often somebody was told of a tick while this time passed.
    int ticksIn(double seconds) {
        const int before = m_day.display.timeSums;
        m_day.advance(seconds);
        return m_day.display.timeSums - before;
    }

    Day m_day{Day::Ticking::OnDemand};
};

TEST_F(TicksTest, whileNothingHappens_aMinuteTakesTheTimersThatItNeedsAndNoMore) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.fakes.idleTime.setBusy(true);
    EXPECT_LE(ticksIn(600), 60) << "the heartbeat, each of which finds the account caught up";
    EXPECT_EQ(account(), "Mail 600 [Inbox 600]");
}

TEST_F(TicksTest, whileTheTimerIsStopped_nothingIsPlanned) {
    m_day.front("Mail", "Inbox");
    EXPECT_EQ(ticksIn(600), 0);
    EXPECT_FALSE(m_day.ticks().due());
}

TEST_F(TicksTest, whateverEndsAWait_findsTheTicksCaughtUp) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.fakes.idleTime.setBusy(true);
    m_day.advance(7.35);
    m_day.fakes.runLoop.wake();
    EXPECT_EQ(m_day.secondsOf("Mail", "Inbox"), 7.35);
}

TEST_F(TicksTest, aTitleThatChanges_keepsTheRowAndGetsTheTimeFromThenOn) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(5);
    m_day.retitle("Outbox");
    m_day.seconds(30);
    EXPECT_EQ(account(), "Mail 35 [Outbox 35]");
}

TEST_F(TicksTest, withARowForEachTitle_eachGetsItsOwnTime) {
    m_day.fakes.defaults.setObject(kRowForEachTitle, true);
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(5);
    m_day.retitle("Outbox");
    m_day.seconds(30);
    m_day.retitle("Inbox");
    m_day.seconds(7);
    EXPECT_EQ(account(), "Mail 42 [Inbox 12, Outbox 30]");
}

TEST_F(TicksTest, anotherWindowOfTheProgram_getsTheTimeSinceItCameToTheFront) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(5);
    m_day.window("Letter");
    m_day.seconds(30);
    m_day.window("Inbox");
    m_day.seconds(1);
    EXPECT_EQ(account(), "Mail 36 [Inbox 6, Letter 30]");
}

TEST_F(TicksTest, anAbsence_isNoticedWhenItIsLongEnough) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.seconds(5);
    // The display counts in its own longer seconds.
    m_day.idle(64.3);
    EXPECT_FALSE(m_day.tracker.isIdle());
    m_day.idle(0.3);
    EXPECT_TRUE(m_day.tracker.isIdle());
    EXPECT_LE(m_day.fakes.idleTime.reads, 4) << "the display is asked when it can have been long enough";
}

TEST_F(TicksTest, whoComesBack_isNoticedAtOnceWhereTheDesktopTells) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.idle(3600);
    ASSERT_TRUE(m_day.tracker.isIdle());
    m_day.fakes.runLoop.wake();
    m_day.fakes.idleTime.touch();
    EXPECT_FALSE(m_day.tracker.isIdle());
}

TEST_F(TicksTest, whoComesBack_isNoticedWithinATenthOfASecondWhereTheDesktopMustBeAsked) {
    m_day.fakes.idleTime.tells = false;
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.idle(3600);
    ASSERT_TRUE(m_day.tracker.isIdle());
    EXPECT_EQ(ticksIn(1), 10);
    m_day.fakes.idleTime.touch();
    m_day.advance(0.1);
    EXPECT_FALSE(m_day.tracker.isIdle());
}

TEST_F(TicksTest, aWindowThatComesUpByItselfDuringAnAbsence_interruptsItForATenthOfASecond) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.idle(3600);
    m_day.front("Chat", "Hello");
    EXPECT_FALSE(m_day.tracker.isIdle());
    m_day.advance(0.1);
    EXPECT_TRUE(m_day.tracker.isIdle());
}

TEST_F(TicksTest, whileAnAbsenceGoesOn_nothingTicksMoreThanOnceAMinuteByItself) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.idle(3600);
    EXPECT_LE(m_day.ticks().due().value() - m_day.fakes.clock.instant(), 60s);
    EXPECT_GE(m_day.ticks().due().value() - m_day.fakes.clock.instant(), 30s);
}

TEST_F(TicksTest, idleDetectionTurnedOffDuringAnAbsence_endsIt) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.idle(3600);
    m_day.fakes.runLoop.wake();
    m_day.fakes.defaults.setObject(kEnableIdleDetection, false);
    m_day.advance(0.1);
    EXPECT_FALSE(m_day.tracker.isIdle());
}

TEST_F(TicksTest, aStop_creditsWhatNoTickHasCreditedYet) {
    m_day.front("Mail", "Inbox");
    m_day.start();
    m_day.advance(7);
    // Without an event of the loop, as when a sleep is noticed.
    m_day.control.stopTimer();
    EXPECT_EQ(m_day.secondsOf("Mail"), 7);
}

// Nothing ran since a tick was due: that is no time in which steady ticks would have come.
TEST_F(TicksTest, aStall_isTheSameGapAsForSteadyTicks) {
    Day steady;
    steady.fakes.defaults.setObject(kMinutesUntilIdle, 1);
    for (Day* day : {&m_day, &steady}) {
        day->front("Mail", "Inbox");
        day->start();
        day->seconds(10);
        day->stall(3600);
        day->advance(0);
        EXPECT_TRUE(day->tracker.isIdle());
    }
    EXPECT_EQ(m_day.tree(), steady.tree());
}

} // namespace
