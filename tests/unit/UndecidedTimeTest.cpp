// SPDX-License-Identifier: MIT
// New windows that say only a moment later which program they belong to.
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

namespace {

class UndecidedTimeTest : public testing::Test {
protected:
    UndecidedTimeTest() {
        m_day.start();
        m_day.front("Mail", "Inbox");
        m_day.seconds(10);
    }

    Day m_day;
};

TEST_F(UndecidedTimeTest, whatPassed_goesToTheProgramThatItTurnsOutToBe) {
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(0.7);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10]") << "and to nobody meanwhile";
    m_day.turnOut("soffice", "Writer");
    m_day.seconds(2);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10], Writer 2.7 [Untitled 1 2.7]");
}

TEST_F(UndecidedTimeTest, whatTurnsOutToBeNothingElse_isWhatItWas) {
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(1);
    m_day.front("Game", "Level 1");
    m_day.seconds(2);
    EXPECT_EQ(m_day.tree(), "Game 3 [Level 1 3], Mail 10 [Inbox 10]");
}

TEST_F(UndecidedTimeTest, aDialogueAndTheWindowAfterIt_eachGetTheirOwnTime) {
    m_day.frontUndecided("soffice", "Text Import");
    m_day.seconds(20);
    m_day.frontUndecided("soffice", "Untitled");
    m_day.seconds(0.2);
    m_day.retitle("t.csv");
    m_day.seconds(0.3);
    m_day.turnOut("soffice", "Calc");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Calc 21.5 [Text Import 20, t.csv 1.5], Mail 10 [Inbox 10]");
}

TEST_F(UndecidedTimeTest, whoTurnsToAnotherProgram_isCountedThereAtOnceAndTheRestWaitsOn) {
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.front("Mail", "Inbox");
    m_day.seconds(20);
    EXPECT_EQ(m_day.tree(), "Mail 30 [Inbox 30]");
    m_day.turnOut("Game", "Better Game");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Better Game 1.5 [Level 1 1.5], Mail 30 [Inbox 30]");
}

TEST_F(UndecidedTimeTest, whoStaysAwayForAMinute_leavesItWhatItWas) {
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.front("Mail", "Inbox");
    m_day.seconds(59.8);
    EXPECT_EQ(m_day.tree(), "Mail 69.8 [Inbox 69.8]");
    m_day.seconds(0.3);
    EXPECT_EQ(m_day.tree(), "Game 0.5 [Level 1 0.5], Mail 70.1 [Inbox 70.1]");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Game 0.5 [Level 1 0.5], Mail 71.1 [Inbox 71.1]");
}

// Each of a suite's programs may have a window open.
TEST_F(UndecidedTimeTest, anOlderWindowOfTheSameProcess_saysNothingAboutIt) {
    const auto front = [&](const char* title, const char* program, bool mayTurnOut) {
        m_day.frontSilently("soffice", title);
        m_day.fakes.windowList.windows.front().ownerName = QString::fromUtf8(program);
        ApplicationRecord record = m_day.recordOf("soffice");
        record.name = QString::fromUtf8(program);
        m_day.fakes.frontApplication.switchTo(record, mayTurnOut);
    };
    front("letter.odt", "Writer", false);
    m_day.seconds(3);
    for (const double look : {0.1, 3.0}) {
        front("Text Import", "soffice", true);
        m_day.seconds(5.9);
        // The dialogue has gone, and nothing else is in front yet.
        std::erase_if(m_day.fakes.windowList.windows,
                      [](const auto& window) { return window.name == QStringLiteral("Text Import"); });
        m_day.seconds(0.1);
        front("letter.odt", "Writer", false);
        m_day.seconds(look);
    }
    front("t.csv", "soffice", true);
    m_day.seconds(0.2);
    front("t.csv", "Calc", false);
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(),
              "Calc 13.2 [Text Import 12, t.csv 1.2], Mail 10 [Inbox 10], Writer 6.1 [letter.odt 6.1]");
}

TEST_F(UndecidedTimeTest, whatItsWindowSaysBehindOthers_isHeardInTheEnd) {
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(0.5);
    m_day.front("Mail", "Inbox");
    for (auto& window : m_day.fakes.windowList.windows)
        if (window.name == QStringLiteral("Untitled 1"))
            window.ownerName = QStringLiteral("Writer");
    m_day.seconds(2);
    m_day.stop();
    EXPECT_EQ(m_day.tree(), "Mail 12 [Inbox 12], Writer 0.5 [Untitled 1 0.5]");
}

TEST_F(UndecidedTimeTest, aNewerWindowOfTheSameProcess_isWhatItWasFor) {
    m_day.frontUndecided("soffice", "Text Import");
    m_day.seconds(6);
    m_day.frontSilently("soffice", "t.csv");
    m_day.turnOut("soffice", "Calc");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Calc 7 [Text Import 6, t.csv 1], Mail 10 [Inbox 10]");
}

// A dialogue closes, and the window before it has the focus until the new one is there.
TEST_F(UndecidedTimeTest, aProgramThatComesBetween_getsItsTimeAtOnce) {
    m_day.frontUndecided("soffice", "Text Import");
    m_day.seconds(5);
    m_day.front("Mail", "Inbox");
    m_day.seconds(0.3);
    EXPECT_EQ(m_day.tree(), "Mail 10.3 [Inbox 10.3]");
    m_day.frontUndecided("soffice", "t.csv");
    m_day.seconds(0.1);
    m_day.turnOut("soffice", "Calc");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Calc 6.1 [Text Import 5, t.csv 1.1], Mail 10.3 [Inbox 10.3]");
}

TEST_F(UndecidedTimeTest, stoppingWhileAProgramIsBetween_losesNothing) {
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.front("Mail", "Inbox");
    m_day.seconds(0.3);
    m_day.stop();
    EXPECT_EQ(m_day.tree(), "Game 0.5 [Level 1 0.5], Mail 10.3 [Inbox 10.3]");
}

TEST_F(UndecidedTimeTest, aScreenThatIsLocked_isIdleAtOnceAndTheRestWaitsOn) {
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.front("ScreenSaverEngine");
    m_day.seconds(5);
    EXPECT_EQ(m_day.tree(), "Idle 5, Mail 10 [Inbox 10]");
    m_day.turnOut("Game", "Better Game");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Better Game 1.5 [Level 1 1.5], Idle 5, Mail 10 [Inbox 10]");
}

TEST_F(UndecidedTimeTest, aPause_endsTheWaitingUntilTheTimerRunsAgain) {
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(0.5);
    m_day.stop();
    m_day.seconds(10);
    m_day.start();
    m_day.seconds(0.5);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10], soffice 0.5 [Untitled 1 0.5]");
    m_day.turnOut("soffice", "Writer");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10], Writer 1.5 [Untitled 1 1.5], soffice 0.5 [Untitled 1 0.5]");
}

// Where the desktop tells no processes, one is made up from what the window says.
TEST_F(UndecidedTimeTest, aWindowThatGetsAnotherProcess_isKnownByItsNumber) {
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(0.5);
    const ApplicationRecord writer = m_day.recordOf("Writer");
    auto& window = m_day.fakes.windowList.windows.at(0);
    window.ownerProcessIdentifier = writer.processIdentifier;
    window.ownerName = writer.name;
    m_day.fakes.frontApplication.switchTo(writer);
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10], Writer 1.5 [Untitled 1 1.5]");
}

TEST_F(UndecidedTimeTest, stopping_losesNothing) {
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.stop();
    EXPECT_EQ(m_day.tree(), "Game 0.5 [Level 1 0.5], Mail 10 [Inbox 10]");
    m_day.seconds(10);
    m_day.turnOut("Game", "Better Game");
    EXPECT_EQ(m_day.tree(), "Game 0.5 [Level 1 0.5], Mail 10 [Inbox 10]");
}

TEST_F(UndecidedTimeTest, startingMeanwhile_countsFromThen) {
    m_day.stop();
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(5);
    m_day.start();
    m_day.seconds(0.5);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10]");
    m_day.turnOut("soffice", "Writer");
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10], Writer 0.5 [Untitled 1 0.5]");
}

TEST_F(UndecidedTimeTest, whoGoesAwayMeanwhile_isIdleAsEver) {
    Day plain;
    plain.start();
    plain.front("Mail", "Inbox");
    plain.seconds(10);
    for (Day* day : {&plain, &m_day}) {
        day->fakes.defaults.setObject(kMinutesUntilIdle, 1);
        day->seconds(1);
    }
    plain.front("Game", "Level 1");
    m_day.frontUndecided("Game", "Level 1");
    for (Day* day : {&plain, &m_day})
        day->idle(90);
    EXPECT_EQ(m_day.tree(), plain.tree());
    EXPECT_GT(m_day.secondsOf("Idle"), 60);
}

TEST_F(UndecidedTimeTest, sleep_losesNothingAndInventsNothing) {
    m_day.control.registerForSystemSleep(m_day.fakes.power);
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.asleep(3600);
    m_day.seconds(0.5);
    m_day.turnOut("Game", "Better Game");
    m_day.seconds(1);
    double sum = 0;
    for (const auto& app : m_day.tracker.fullTimeSet())
        sum += app->activeTime();
    EXPECT_NEAR(sum, 12, 0.15) << m_day.tree();
}

TEST_F(UndecidedTimeTest, theRulesForTitles_areAskedForTheProgramThatItIs) {
    m_day.titleRules.read(PropertyListArray{PropertyListDictionary{
        {kTitleRuleProgram, QStringLiteral("Writer")}, {kTitleRuleEffect, QStringLiteral("private")}}});
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(0.5);
    m_day.turnOut("soffice", "Writer");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Mail 10 [Inbox 10], Private 1.5");
}

TEST_F(UndecidedTimeTest, stretches_areToldInTheOrderOfTime) {
    struct Ends : StretchListener {
        void credited(const Stretch& stretch) override {
            EXPECT_GE(stretch.from, last);
            last = stretch.to;
        }
        void absent(Instant, Instant, Seconds) override {}
        Instant last{};
    } ends;
    const Subscription subscription = m_day.tracker.listen(ends);
    m_day.frontUndecided("Game", "Level 1");
    m_day.seconds(0.5);
    m_day.frontUndecided("soffice", "Untitled 1");
    m_day.seconds(0.5);
    m_day.turnOut("soffice", "Writer");
    m_day.seconds(0.5);
    m_day.front("Mail", "Inbox");
    m_day.seconds(0.5);
    EXPECT_EQ(ends.last, m_day.fakes.clock.instant());
}

} // namespace
