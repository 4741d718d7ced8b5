// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"

#include "platform/foundation/time/Clock.h"
#include "platform/foundation/values/Assertions.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/RecordingLog.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class QtRunLoopTest : public testing::Test {
protected:
    // Turns the real loop until `condition` holds; false after a generous limit.
    template<class Condition>
    bool turnUntil(Condition condition) {
        const auto end = m_clock.monotonic() + 20s;
        while (!condition() && m_clock.monotonic() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
        return condition();
    }

    // The same, waiting as the program does.
    template<class Condition>
    bool waitUntil(Condition condition) {
        const auto limit = m_loop.scheduleOnce(20s, [] {});
        while (!condition() && limit->isValid())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return condition();
    }

    SystemClock m_clock;
    RecordingLog m_log;
    QtRunLoop m_loop{m_log};
};

TEST_F(QtRunLoopTest, aRepeatingTimer_firesAgainAndAgainButNeverEarly) {
    int fired = 0;
    const auto start = m_clock.monotonic();
    const auto timer = m_loop.scheduleRepeating(20ms, 0ms, [&] { ++fired; });
    EXPECT_TRUE(timer->isValid());
    EXPECT_TRUE(turnUntil([&] { return fired >= 3; }));
    EXPECT_GE(m_clock.monotonic() - start, 58ms);
    EXPECT_TRUE(timer->isValid());
}

TEST_F(QtRunLoopTest, aTimerForOnce_firesOnceAndIsThenInvalid) {
    int fired = 0;
    int later = 0;
    const auto timer = m_loop.scheduleOnce(0ms, [&] { ++fired; });
    const auto after = m_loop.scheduleOnce(30ms, [&] { ++later; });
    EXPECT_TRUE(turnUntil([&] { return later == 1; }));
    EXPECT_EQ(fired, 1);
    EXPECT_FALSE(timer->isValid());
}

TEST_F(QtRunLoopTest, aTimerThatIsDestroyedOrInvalidated_firesNoMore) {
    int fired = 0;
    int later = 0;
    auto destroyed = m_loop.scheduleOnce(1ms, [&] { ++fired; });
    const auto invalidated = m_loop.scheduleOnce(1ms, [&] { ++fired; });
    const auto after = m_loop.scheduleOnce(20ms, [&] { ++later; });
    destroyed.reset();
    invalidated->invalidate();
    EXPECT_FALSE(invalidated->isValid());
    EXPECT_TRUE(turnUntil([&] { return later == 1; }));
    EXPECT_EQ(fired, 0);
}

TEST_F(QtRunLoopTest, aTimer_mayDestroyItselfWhileItFires) {
    std::unique_ptr<RunLoopTimer> timer;
    int fired = 0;
    timer = m_loop.scheduleRepeating(1ms, 0ms, [&] {
        timer.reset();
        ++fired;
    });
    EXPECT_TRUE(turnUntil([&] { return fired == 1; }));
    EXPECT_FALSE(timer);
}

TEST_F(QtRunLoopTest, aTaskThatBreaksAContract_isLoggedAndTheLoopGoesOn) {
    int fired = 0;
    const auto timer = m_loop.scheduleRepeating(1ms, 0ms, [&] {
        ++fired;
        throw InternalInconsistency(u"Classes/TimeTracker"_s, 432, u"odd"_s);
    });
    m_loop.performSoon([] { throw InternalInconsistency(u"Soon"_s, 1, u"odd too"_s); });
    EXPECT_TRUE(turnUntil([&] { return fired >= 2; }));
    EXPECT_TRUE(m_log.mentions(u"*** Assertion failure in Classes/TimeTracker:432: odd"_s));
    EXPECT_TRUE(m_log.mentions(u"*** Assertion failure in Soon:1: odd too"_s));
    EXPECT_TRUE(timer->isValid());
}

TEST_F(QtRunLoopTest, tasksFromOtherThreads_runOnTheMainThreadInTheirOrder) {
    std::vector<int> ran;
    const auto mainThread = std::this_thread::get_id();
    std::thread([&] {
        for (int i = 0; i < 5; ++i)
            m_loop.performSoon([&, i] {
                EXPECT_EQ(std::this_thread::get_id(), mainThread);
                ran.push_back(i);
            });
    }).join();
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(turnUntil([&] { return ran.size() == 5; }));
    EXPECT_EQ(ran, (std::vector{0, 1, 2, 3, 4}));
}

TEST_F(QtRunLoopTest, whateverEndsAWait_isHandledAfterItsEndIsTold) {
    std::vector<std::string> told;
    const Subscription waits =
        m_loop.observeWaits({.woken = [&] { told.emplace_back("woken"); },
                             .aboutToWait = [&] { told.emplace_back("about to wait"); }});
    const auto timer = m_loop.scheduleOnce(20ms, [&] { told.emplace_back("timer"); });
    EXPECT_TRUE(waitUntil([&] { return !told.empty() && told.back() == "timer"; }));
    ASSERT_GE(told.size(), 3U);
    EXPECT_EQ(told.at(0), "about to wait");
    EXPECT_EQ(told.at(told.size() - 2), "woken");
    told.clear();
    std::thread([&] { m_loop.performSoon([&] { told.emplace_back("task"); }); }).join();
    EXPECT_TRUE(waitUntil([&] { return !told.empty() && told.back() == "task"; }));
    EXPECT_EQ(told.at(told.size() - 2), "woken");
}

TEST_F(QtRunLoopTest, aTimerThatIsDestroyedWhenItsWaitEnds_firesNoMore) {
    int fired = 0;
    int later = 0;
    auto timer = m_loop.scheduleOnce(5ms, [&] { ++fired; });
    const Subscription waits = m_loop.observeWaits({.woken = [&] { timer.reset(); }, .aboutToWait = {}});
    const auto after = m_loop.scheduleOnce(50ms, [&] { ++later; });
    EXPECT_TRUE(waitUntil([&] { return later == 1; }));
    EXPECT_EQ(fired, 0);
}

TEST_F(QtRunLoopTest, aTimerWithATolerance_keepsIt) {
    int fired = 0;
    const auto start = m_clock.monotonic();
    const auto timer = m_loop.scheduleOnce(1s, 100ms, [&] { ++fired; });
    EXPECT_TRUE(turnUntil([&] { return fired == 1; }));
    EXPECT_GE(m_clock.monotonic() - start, 900ms);
}

TEST_F(QtRunLoopTest, tasksThatAreStillQueuedWhenTheLoopGoes_areDropped) {
    int ran = 0;
    int after = 0;
    {
        QtRunLoop gone(m_log);
        gone.performSoon([&] { ++ran; });
    }
    m_loop.performSoon([&] { ++after; });
    EXPECT_TRUE(turnUntil([&] { return after == 1; }));
    EXPECT_EQ(ran, 0);
}

} // namespace
