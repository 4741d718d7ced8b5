// SPDX-License-Identifier: MIT
// What happens to time in which nobody is there.
#include "Classes/engine/IdleBookings.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class AbsenceTest : public testing::Test {
protected:
    AbsenceTest() {
        m_day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
        m_day.front("Mail", "Inbox");
    }

    double sum() const {
        double sum = 0;
        for (const auto& app : m_day.tracker.fullTimeSet())
            sum += app->activeTime();
        return sum;
    }

    Day m_day;
};

TEST_F(AbsenceTest, aLockInTheMiddle_isTheSameAbsence) {
    m_day.start();
    m_day.idle(80);
    m_day.front("ScreenSaverEngine");
    m_day.idle(15);
    // At the onset 60 seconds, which the display reaches after 64.4 real ones, and what came after it.
    EXPECT_NEAR(m_day.secondsOf("Idle"), 90.6, 0.15);
    EXPECT_NEAR(m_day.secondsOf("Mail"), 64.4, 0.2);
}

TEST_F(AbsenceTest, anHourWithSixPopUps_isAnHour) {
    m_day.start();
    for (int popUp = 0; popUp < 6; ++popUp) {
        m_day.idle(600);
        m_day.front("Calendar", "Reminder");
    }
    EXPECT_NEAR(m_day.secondsOf("Idle"), 3600 - 4.4, 1);
    EXPECT_LT(m_day.secondsOf("Calendar"), 1);
}

TEST_F(AbsenceTest, aScreenLockedAtOnce_leavesNothingToBook) {
    m_day.start();
    m_day.front("ScreenSaverEngine");
    m_day.idle(200);
    EXPECT_EQ(m_day.tree(), "Idle 200, Mail 0 [Inbox 0]");
}

TEST_F(AbsenceTest, aScreenLockedBeforeTheThreshold_leavesTheTimeBeforeTheLockToBook) {
    m_day.start();
    m_day.idle(20);
    m_day.front("ScreenSaverEngine");
    m_day.idle(60);
    // At the onset 60 are due, of which the lock has already booked 44.5.
    EXPECT_NEAR(m_day.secondsOf("Idle"), 60 + 15.6, 0.2);
    EXPECT_NEAR(m_day.secondsOf("Mail"), 20, 0.2);
}

TEST_F(AbsenceTest, afterInputTheNextAbsence_isBookedAnew) {
    m_day.start();
    m_day.idle(100);
    m_day.seconds(10);
    const double first = m_day.secondsOf("Idle");
    m_day.idle(100);
    EXPECT_NEAR(m_day.secondsOf("Idle"), 2 * first, 0.2);
}

TEST_F(AbsenceTest, deletingATimerMeanwhile_booksNothingAgain) {
    m_day.start();
    m_day.idle(100);
    m_day.remove("Mail");
    m_day.idle(100);
    EXPECT_NEAR(m_day.secondsOf("Idle"), 200 - 4.4, 0.3);
}

TEST_F(AbsenceTest, whileStopped_nobodyIsAwayEither) {
    m_day.start();
    m_day.seconds(10);
    m_day.stop();
    // Even with ticks.
    m_day.control.recreateComputeTimer();
    m_day.idle(1000);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10]");
    m_day.start();
    m_day.idle(50);
    // The absence began before the start; what came before belongs to nobody.
    EXPECT_NEAR(sum(), 60, 0.2);
}

TEST_F(AbsenceTest, clearedInTheMiddle_beginsAnewAtTheClear) {
    m_day.start();
    m_day.idle(3600);
    m_day.tracker.reset();
    m_day.idle(100);
    EXPECT_NEAR(m_day.secondsOf("Idle"), 100, 0.3);
    EXPECT_NEAR(sum(), 100, 0.3);
}

TEST_F(AbsenceTest, clearedWhileStopped_leavesAnEmptyTree) {
    m_day.start();
    m_day.idle(3600);
    m_day.stop();
    m_day.tracker.reset();
    m_day.control.computeTime();
    m_day.idle(100);
    m_day.control.computeTime();
    EXPECT_EQ(m_day.tree(), "");
}

TEST_F(AbsenceTest, withAThresholdOfNone_isBookedOnceAsWell) {
    m_day.fakes.defaults.setObject(kMinutesUntilIdle, 0);
    m_day.start();
    for (int switches = 0; switches < 5; ++switches) {
        m_day.idle(10);
        m_day.front("Calendar", "Reminder");
    }
    EXPECT_NEAR(sum(), 50, 0.1);
}

TEST_F(AbsenceTest, aTimerFrozenMeanwhile_leavesTheAbsenceToIdle) {
    m_day.start();
    m_day.idle(100);
    m_day.freeze("Mail", "Inbox");
    m_day.freeze("Idle");
    m_day.idle(50);
    EXPECT_NEAR(m_day.secondsOf("Idle"), 50, 0.2);
    EXPECT_NEAR(m_day.secondsOf("Mail"), 64.4, 0.2);
}

TEST_F(AbsenceTest, aGapWithAnApplicationWithoutWindows_givesTheLastOnesWindowNothing) {
    m_day.start();
    m_day.seconds(200);
    m_day.front("Desktop");
    m_day.stall(100);
    m_day.fakes.idleTime.setIdle(70s);
    m_day.advance(0);
    EXPECT_EQ(m_day.tree(), "Desktop 35, Idle 65, Mail 200 [Inbox 200]");
}

Instant at(int seconds) {
    return Instant(std::chrono::seconds(seconds));
}

TEST(IdleBookings, whatIsAskedFor_isWhatLiesAfterTheInput) {
    IdleBookings bookings;
    EXPECT_EQ(bookings.bookedSince(at(0)), 0);
    bookings.add(at(10), at(20));
    bookings.add(at(20), at(30));
    bookings.add(at(40), at(50));
    EXPECT_EQ(bookings.bookedSince(at(0)), 30);
    EXPECT_EQ(bookings.bookedSince(at(25)), 15);
    EXPECT_EQ(bookings.bookedSince(at(60)), 0);
}

TEST(IdleBookings, aSettledAbsence_countsFromItsBeginning) {
    IdleBookings bookings;
    bookings.add(at(10), at(20));
    bookings.settle(at(5), at(30));
    EXPECT_EQ(bookings.bookedSince(at(5)), 25);
    bookings.add(at(30), at(31));
    EXPECT_EQ(bookings.bookedSince(at(5)), 26);
}

TEST(IdleBookings, aStretchThatOverlaps_countsOnce) {
    IdleBookings bookings;
    bookings.add(at(10), at(20));
    bookings.add(at(15), at(18));
    bookings.add(at(15), at(25));
    EXPECT_EQ(bookings.bookedSince(at(0)), 15);
}

TEST(IdleBookings, aYearOfLocks_isBoundedAndTheLatestCount) {
    IdleBookings bookings;
    for (int lock = 0; lock < 100'000; ++lock)
        bookings.add(at(10 * lock), at(10 * lock + 5));
    EXPECT_EQ(bookings.bookedSince(at(0)), 5000);
    EXPECT_EQ(bookings.bookedSince(at(999'990)), 5);
}

} // namespace
