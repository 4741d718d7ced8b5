// SPDX-License-Identifier: MIT
#include "platform/desktop/FirstMoments.h"
#include "tests/fakes/ManualRunLoop.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

class FirstMomentsTest : public testing::Test {
protected:
    bool includes(std::int64_t window, std::chrono::milliseconds length = FirstMoments::kLength) {
        return m_moments.include(window, length, m_isAnswerOwed);
    }

    bool m_isAnswerOwed = false;

    HandClock m_clock;
    ManualRunLoop m_runLoop{m_clock};
    int m_asked = 0;
    FirstMoments m_moments{m_runLoop, [this] { ++m_asked; }};
};

TEST_F(FirstMomentsTest, theMoment_isOverOnceAfterItsLength) {
    EXPECT_TRUE(includes(1));
    m_runLoop.advance(999ms);
    EXPECT_TRUE(includes(1));
    EXPECT_EQ(m_asked, 0);
    m_runLoop.advance(1ms);
    EXPECT_EQ(m_asked, 1);
    EXPECT_FALSE(includes(1));
    EXPECT_FALSE(includes(1, FirstMoments::kLengthBeforeParent));
    m_runLoop.advance(1h);
    EXPECT_EQ(m_asked, 1);
}

TEST_F(FirstMomentsTest, windowsThatWereThereBefore_haveNone) {
    m_moments.skip(3);
    EXPECT_FALSE(includes(2));
    EXPECT_FALSE(includes(3));
    EXPECT_TRUE(includes(4));
}

TEST_F(FirstMomentsTest, aNewerWindow_endsThatOfTheOneBeforeAndBeginsItsOwn) {
    EXPECT_TRUE(includes(1, FirstMoments::kLengthBeforeParent));
    m_runLoop.advance(30s);
    EXPECT_TRUE(includes(2));
    m_runLoop.advance(999ms);
    EXPECT_TRUE(includes(2));
    EXPECT_FALSE(includes(1));
    m_runLoop.advance(1ms);
    EXPECT_FALSE(includes(2));
}

TEST_F(FirstMomentsTest, whoeverIsAskedAboutAgain_getsNoNewMoment) {
    for (int i = 0; i < 20; ++i) {
        static_cast<void>(includes(1));
        m_runLoop.advance(100ms);
    }
    EXPECT_EQ(m_asked, 1);
    EXPECT_FALSE(includes(1));
}

TEST_F(FirstMomentsTest, aMomentMayTurnOutLongerOnceButNotShorter) {
    EXPECT_TRUE(includes(1));
    EXPECT_TRUE(includes(1, FirstMoments::kLengthBeforeParent));
    m_runLoop.advance(2s);
    EXPECT_TRUE(includes(1));
    m_runLoop.advance(FirstMoments::kLengthBeforeParent);
    EXPECT_FALSE(includes(1));
}

// Who was stopped hears the end of the moment first and then what the window has said meanwhile.
TEST_F(FirstMomentsTest, whatIsStillToBeHeard_isHeardBeforeTheMomentIsOver) {
    EXPECT_TRUE(includes(1));
    m_isAnswerOwed = true;
    m_runLoop.advance(10s);
    EXPECT_TRUE(includes(1));
    m_isAnswerOwed = false;
    EXPECT_FALSE(includes(1));
    EXPECT_EQ(m_asked, 1);
}

} // namespace
