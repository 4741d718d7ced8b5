// SPDX-License-Identifier: MIT
#include "tests/fakes/ManualRunLoop.h"
#include "platform/foundation/values/Assertions.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class ManualRunLoopTest : public testing::Test {
protected:
    void note(const char* what) {
        m_told << QStringLiteral("%1@%2").arg(QLatin1String(what)).arg((m_clock.monotonic() - m_start) / 1ms);
    }

    RunLoop::Task noting(const char* what) {
        return [this, what] { note(what); };
    }

    QString told() const { return m_told.join(u' '); }

    HandClock m_clock;
    std::chrono::nanoseconds m_start = m_clock.monotonic();
    ManualRunLoop m_loop{m_clock};
    QStringList m_told;
};

TEST_F(ManualRunLoopTest, timers_fireInTheOrderInWhichTheyAreDue) {
    const auto slow = m_loop.scheduleRepeating(30ms, 0ms, noting("slow"));
    const auto fast = m_loop.scheduleRepeating(20ms, 0ms, noting("fast"));
    const auto once = m_loop.scheduleOnce(25ms, noting("once"));
    m_loop.advance(60ms);
    EXPECT_EQ(told(), QStringLiteral("fast@20 once@25 slow@30 fast@40 slow@60 fast@60"));
    EXPECT_FALSE(once->isValid());
    EXPECT_EQ(m_loop.activeTimers(), 2);
    EXPECT_EQ(m_clock.monotonic() - m_start, 60ms);
}

TEST_F(ManualRunLoopTest, firingsThatWereMissed_areNotMadeUpForAndThePhaseIsKept) {
    const auto timer = m_loop.scheduleRepeating(100ms, 0ms, noting("tick"));
    m_clock.advance(350ms);
    m_loop.advance(60ms);
    EXPECT_EQ(told(), QStringLiteral("tick@350 tick@400"));
}

TEST_F(ManualRunLoopTest, aTimerThatDestroysItself_firesOnce) {
    std::unique_ptr<RunLoopTimer> timer;
    timer = m_loop.scheduleRepeating(10ms, 0ms, [&] {
        timer.reset();
        note("last");
    });
    m_loop.advance(50ms);
    EXPECT_EQ(told(), QStringLiteral("last@10"));
    EXPECT_EQ(m_loop.activeTimers(), 0);
}

TEST_F(ManualRunLoopTest, aTaskThatBreaksAContract_isRecordedAndTheLoopGoesOn) {
    const auto timer = m_loop.scheduleRepeating(10ms, 0ms, [&] {
        note("tick");
        throw InternalInconsistency(QStringLiteral("Here"), 7, QStringLiteral("odd"));
    });
    m_loop.advance(20ms);
    EXPECT_EQ(told(), QStringLiteral("tick@10 tick@20"));
    EXPECT_EQ(m_loop.failures().size(), 2);
    EXPECT_EQ(m_loop.failures().first(), QStringLiteral("*** Assertion failure in Here:7: odd"));
}

TEST_F(ManualRunLoopTest, tasksForTheNextTurn_runBeforeTheNextTimer) {
    const auto timer = m_loop.scheduleOnce(10ms, [&] {
        m_loop.performSoon(noting("soon"));
        note("timer");
    });
    const auto later = m_loop.scheduleOnce(20ms, noting("later"));
    m_loop.advance(20ms);
    EXPECT_EQ(told(), QStringLiteral("timer@10 soon@10 later@20"));
}

TEST_F(ManualRunLoopTest, sleep_movesEveryClockButTheMonotonic) {
    const Date wall = m_clock.now();
    const auto boot = m_clock.sinceBoot();
    m_clock.sleepFor(1h);
    EXPECT_EQ(m_clock.now() - wall, 1h);
    EXPECT_EQ(m_clock.sinceBoot() - boot, 1h);
    EXPECT_EQ(m_clock.monotonic(), m_start);
}

TEST_F(ManualRunLoopTest, settingTheWallClock_leavesTheOthersAlone) {
    const Date wall = m_clock.now();
    m_clock.setWall(wall - 24h);
    m_clock.advance(1s);
    EXPECT_EQ(m_clock.now(), wall - 24h + 1s);
    EXPECT_EQ(m_clock.sinceBoot(), m_start + 1s);
}

} // namespace
