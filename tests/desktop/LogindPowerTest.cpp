// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/foundation/values/Assertions.h"
#include "platform/linux/LinuxPower.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

const QString kHeld = QStringLiteral("sleep:Ticklog:delay");
const QString kNone;

// Records what it is told: "sleep", "wake".
class PowerDiary {
public:
    void hear(PowerEvents& power) {
        m_news = power.observe({.aboutToSleep =
                                    [this] {
                                        told << QStringLiteral("sleep");
                                        if (whileFallingAsleep)
                                            whileFallingAsleep();
                                    },
                                .woke = [this] { told << QStringLiteral("wake"); }});
    }

    bool waitFor(const QStringList& lines) {
        return ::waitFor([&] { return told == lines; });
    }

    QStringList told;
    std::function<void()> whileFallingAsleep;

private:
    Subscription m_news;
};

QStringList lines(const char* text) {
    return QString::fromLatin1(text).split(QStringLiteral(", "));
}

class LogindPowerTest : public testing::Test {
protected:
    LogindMachine m_machine;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    Bus m_bus{Bus::atAddress(m_machine.address()), m_runLoop, m_log};
    LogindPower m_power{m_bus, m_log};
    PowerDiary m_diary;
};

TEST_F(LogindPowerTest, aSleep_waitsUntilWhoIsToldIsDoneAndIsDelayedAgainAfterTheWake) {
    m_machine.ask("start-logind");
    bool isDelayingMeanwhile = false;
    m_diary.whileFallingAsleep = [&] { isDelayingMeanwhile = m_power.isDelaying(); };
    m_diary.hear(m_power);
    EXPECT_TRUE(m_power.tellsOfSleep());
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep")));
    EXPECT_TRUE(m_machine.waitForInhibitors(kNone));
    EXPECT_TRUE(isDelayingMeanwhile);
    m_machine.ask("prepare-for-sleep false");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep, wake")));
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
}

TEST_F(LogindPowerTest, aContractBrokenBeforeASleep_doesNotHoldItUp) {
    m_machine.ask("start-logind");
    m_diary.whileFallingAsleep = [] {
        throw InternalInconsistency(QStringLiteral("here"), 1, QStringLiteral("broken"));
    };
    m_diary.hear(m_power);
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    EXPECT_TRUE(m_machine.waitForInhibitors(kNone));
}

TEST_F(LogindPowerTest, aSecondSleep_isDelayedAsTheFirst) {
    m_machine.ask("start-logind");
    m_diary.hear(m_power);
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    for (const char* news : {"prepare-for-sleep true", "prepare-for-sleep false", "prepare-for-sleep true"})
        m_machine.ask(news);
    ASSERT_TRUE(m_diary.waitFor(lines("sleep, wake, sleep")));
    EXPECT_FALSE(m_power.isDelaying());
}

TEST_F(LogindPowerTest, aLogindThatComesLateOrComesBack_isAskedForTheDelay) {
    m_diary.hear(m_power);
    EXPECT_TRUE(m_power.tellsOfSleep());
    EXPECT_FALSE(m_power.isServed());
    m_machine.ask("start-logind");
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("stop-logind");
    ASSERT_TRUE(waitFor([this] { return !m_power.isServed(); }));
    m_machine.ask("start-logind");
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep")));
}

TEST_F(LogindPowerTest, aWakeThatLogindDidNotLiveToTell_isToldWhenItIsBack) {
    m_machine.ask("start-logind");
    m_diary.hear(m_power);
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep")));
    m_machine.ask("stop-logind");
    ASSERT_TRUE(waitFor([this] { return !m_power.isServed(); }));
    m_machine.ask("start-logind");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep, wake")));
}

TEST_F(LogindPowerTest, aBusThatGoesAndComesBack_isConnectedToAgain) {
    m_machine.ask("start-logind");
    m_diary.hear(m_power);
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("stop-bus");
    ASSERT_TRUE(waitFor([this] { return !m_bus.isConnected(); }));
    EXPECT_FALSE(m_power.isDelaying());
    m_machine.ask("start-bus");
    m_machine.ask("start-logind");
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep")));
}

TEST_F(LogindPowerTest, aSignalFromAnybodyElse_isNotBelieved) {
    m_machine.ask("start-logind");
    m_diary.hear(m_power);
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    auto forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
                                             QStringLiteral("org.freedesktop.login1.Manager"),
                                             QStringLiteral("PrepareForSleep"));
    forged << true;
    m_bus.connection().send(forged);
    ASSERT_TRUE(roundTrip(m_bus));
    EXPECT_EQ(m_diary.told, QStringList());
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(waitFor([this] { return !m_diary.told.isEmpty(); }));
    EXPECT_EQ(m_diary.told, lines("sleep"));
    m_machine.ask("prepare-for-sleep false");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep, wake")));
}

TEST_F(LogindPowerTest, aSleepThatLogindMissed_isToldOfByTheClocks) {
    HandClock clock;
    ClockJumpPower clocks(clock);
    LinuxPower both(m_power, clocks);
    m_diary.hear(both);
    EXPECT_TRUE(both.tellsOfSleep());
    m_machine.ask("start-logind");
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    clock.sleepFor(std::chrono::minutes(5));
    clocks.check();
    EXPECT_EQ(m_diary.told, lines("sleep, wake"));
    EXPECT_EQ(both.describe(), QStringLiteral("logind"));
    EXPECT_EQ(m_machine.ask("inhibitors"), kHeld) << "logind's own sleep is still to come";
}

TEST(LogindPower, withoutAnyBus_nobodyTells) {
    RecordingLog log;
    QtRunLoop runLoop(log);
    Bus bus(Bus::atAddress(QStringLiteral("unix:path=/nowhere/bus")), runLoop, log);
    LogindPower power(bus, log);
    EXPECT_FALSE(power.tellsOfSleep());
}

TEST(ClockJumpPower, aSleep_isToldOnceItHasEnded) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary diary;
    diary.hear(power);
    clock.advance(std::chrono::hours(1));
    power.check();
    EXPECT_EQ(diary.told, QStringList());
    clock.sleepFor(std::chrono::seconds(2));
    power.check();
    power.check();
    EXPECT_EQ(diary.told, lines("sleep, wake"));
}

TEST(ClockJumpPower, aSecondWhoHears_isToldBesideTheFirst) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary first;
    first.hear(power);
    {
        PowerDiary second;
        second.hear(power);
        clock.sleepFor(std::chrono::seconds(2));
        power.check();
        EXPECT_EQ(second.told, lines("sleep, wake"));
    }
    clock.sleepFor(std::chrono::seconds(2));
    power.check();
    EXPECT_EQ(first.told, lines("sleep, wake, sleep, wake"));
}

TEST(ClockJumpPower, manySmallDifferences_addUpToASleep) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary diary;
    diary.hear(power);
    for (int i = 0; i < 9; ++i) {
        clock.sleepFor(std::chrono::milliseconds(100));
        power.check();
    }
    EXPECT_EQ(diary.told, QStringList());
    clock.sleepFor(std::chrono::milliseconds(100));
    power.check();
    EXPECT_EQ(diary.told, lines("sleep, wake"));
}

TEST(ClockJumpPower, aWallClockThatIsSet_isNoSleep) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary diary;
    diary.hear(power);
    clock.setWall(clock.now() + std::chrono::hours(24));
    power.check();
    EXPECT_EQ(diary.told, QStringList());
}

} // namespace
