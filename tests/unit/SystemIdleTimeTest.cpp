// SPDX-License-Identifier: MIT
#include "Classes/engine/SystemIdleTime.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakeDesktop.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class SystemIdleTimeTest : public testing::Test {
protected:
    static constexpr std::chrono::nanoseconds kSecond{1 << 30};

    std::uint64_t secondsOf(IdleReading::Lack lack) { return secondsOfAnswer(lack); }
    std::uint64_t secondsOf(std::chrono::nanoseconds time) { return secondsOfAnswer(time); }
    std::uint64_t secondsOfAnswer(const IdleReading& answer) {
        m_source.answer = answer;
        return m_idleTime.seconds();
    }

    std::string printed() { return str(std::exchange(m_log.printed, {}).join(u'|')); }

    HandClock m_clock;
    FakeIdleTime m_source{m_clock};
    RecordingLog m_log;
    std::vector<int> m_exits;
    SystemIdleTime m_idleTime{m_source, m_clock, m_log, [this](int status) { m_exits.push_back(status); }};
};

TEST_F(SystemIdleTimeTest, aSecond_isTwoToTheThirtyNanoseconds) {
    EXPECT_EQ(secondsOf(kSecond), 1U);
    EXPECT_EQ(secondsOf(kSecond - 1ns), 0U);
    EXPECT_EQ(secondsOf(1s), 0U);
    EXPECT_EQ(secondsOf(900s), 838U);
}

TEST_F(SystemIdleTimeTest, aTimeBeforeTheLastInput_isNone) {
    EXPECT_EQ(secondsOf(-5s), 0U);
}

TEST_F(SystemIdleTimeTest, withoutADisplay_theProcessEnds) {
    EXPECT_EQ(secondsOf(IdleReading::Lack::NoDisplay), 0U);
    EXPECT_EQ(printed(), "Error accessing IOHIDSystem");
    EXPECT_EQ(m_exits, std::vector{1});
}

TEST_F(SystemIdleTimeTest, withoutAnInputDevice_theProcessEnds) {
    EXPECT_EQ(secondsOf(IdleReading::Lack::NoInput), 0U);
    EXPECT_EQ(printed(), "Iterator's empty!");
    EXPECT_EQ(m_exits, std::vector{1});
}

TEST_F(SystemIdleTimeTest, withoutAnAnswer_nobodyIsIdle) {
    EXPECT_EQ(secondsOf(IdleReading::Lack::NoAnswer), 0U);
    EXPECT_EQ(printed(), "Couldn't grab properties of system|Can't find idle time");
    EXPECT_TRUE(m_exits.empty());
}

TEST_F(SystemIdleTimeTest, withoutAnIdleTime_nobodyIsIdle) {
    EXPECT_EQ(secondsOf(IdleReading::Lack::NotCounted), 0U);
    EXPECT_EQ(printed(), "Can't find idle time");
    EXPECT_TRUE(m_exits.empty());
}

TEST_F(SystemIdleTimeTest, theThreshold_includesItself) {
    m_source.answer = 300 * kSecond - 1ns;
    EXPECT_FALSE(m_idleTime.hasReachedMinutes(5));
    m_clock.advance(1h);
    m_source.answer = 300 * kSecond;
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(5));
}

TEST_F(SystemIdleTimeTest, aThresholdOfNothing_isAlwaysReachedWithoutAsking) {
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(0));
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(-3));
    EXPECT_EQ(m_source.reads, 0);
}

TEST_F(SystemIdleTimeTest, theDisplay_isAskedAgainOnlyWhenTheThresholdCanHaveBeenReached) {
    m_source.touch();
    EXPECT_FALSE(m_idleTime.hasReachedMinutes(1));
    EXPECT_EQ(m_source.reads, 1);
    for (int tick = 0; tick < 644; ++tick) {
        m_clock.advance(100ms);
        EXPECT_FALSE(m_idleTime.hasReachedMinutes(1));
    }
    EXPECT_EQ(m_source.reads, 1);
    m_clock.advance(100ms);
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(1));
    EXPECT_EQ(m_source.reads, 2);
}

TEST_F(SystemIdleTimeTest, whileIdle_theDisplayIsAskedEachTime) {
    m_source.setIdle(1h);
    for (int tick = 0; tick < 10; ++tick)
        EXPECT_TRUE(m_idleTime.hasReachedMinutes(1));
    EXPECT_EQ(m_source.reads, 10);
    m_source.touch();
    EXPECT_FALSE(m_idleTime.hasReachedMinutes(1));
}

TEST_F(SystemIdleTimeTest, aShorterThreshold_asksAtOnceIfItCanBeReached) {
    m_source.setIdle(10min);
    EXPECT_FALSE(m_idleTime.hasReachedMinutes(60));
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(5));
}

TEST_F(SystemIdleTimeTest, theEarliestMoment_isWhenTheNextQuestionCanBeAnsweredWithYes) {
    EXPECT_EQ(m_idleTime.canReachMinutesAt(1), m_clock.instant()) << "nothing is known yet";
    m_source.setIdle(10s);
    EXPECT_FALSE(m_idleTime.hasReachedMinutes(1));
    const Instant at = m_idleTime.canReachMinutesAt(1);
    m_clock.advance(at - m_clock.instant() - 1ns);
    EXPECT_FALSE(m_idleTime.hasReachedMinutes(1));
    m_clock.advance(1ns);
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(1));
    EXPECT_LE(m_idleTime.canReachMinutesAt(1), m_clock.instant());
    EXPECT_LE(m_idleTime.canReachMinutesAt(-5), m_clock.instant());
    EXPECT_GT(m_idleTime.canReachMinutesAt(std::numeric_limits<std::int64_t>::max()),
              m_clock.instant() + std::chrono::years(40));
}

TEST_F(SystemIdleTimeTest, aReadingNearItsLimit_doesNotWrapRound) {
    m_source.answer = std::chrono::nanoseconds::max();
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(5));
    m_clock.advance(1s);
    EXPECT_TRUE(m_idleTime.hasReachedMinutes(5));
}

TEST_F(SystemIdleTimeTest, theVerdict_isThatOfAskingEveryTime) {
    std::mt19937 random(20260105);
    for (int step = 0; step < 20000; ++step) {
        m_clock.advance(std::chrono::milliseconds(random() % 3000));
        if (random() % 200 == 0)
            m_source.touch();
        const auto minutes = std::int64_t(random() % 4 + 1);
        const bool expected = double(minutes) <= double(std::uint64_t(m_source.idle().count()) >> 30) / 60.0;
        ASSERT_EQ(m_idleTime.hasReachedMinutes(minutes), expected) << step;
    }
    EXPECT_LT(m_source.reads, 20000);
}

} // namespace
