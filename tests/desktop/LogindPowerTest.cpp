// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/LinuxPower.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

const QString kHeld = QStringLiteral("sleep:Ticklog:delay");
const QString kNone;

// Writes down what it is told: "sleep 1", "wake".
class PowerDiary {
public:
    PowerEvents::Handler handler() {
        return [this](PowerMessage message, std::int64_t notification) {
            if (message == PowerMessage::SystemWillSleep)
                told << QStringLiteral("sleep %1").arg(notification);
            else if (message == PowerMessage::SystemHasPoweredOn)
                told << QStringLiteral("wake");
            else
                told << QStringLiteral("something else");
        };
    }

    bool waitFor(const QStringList& lines) {
        return ::waitFor([&] { return told == lines; });
    }

    QStringList told;
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

TEST_F(LogindPowerTest, aSleep_waitsUntilItIsAllowedAndIsDelayedAgainAfterTheWake) {
    m_machine.ask("start-logind");
    const auto port = m_power.registerForSystemPower(m_diary.handler());
    EXPECT_NE(port, 0U);
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep 1")));
    EXPECT_EQ(m_machine.ask("inhibitors"), kHeld);
    m_power.allowPowerChange(port, 1);
    EXPECT_TRUE(m_machine.waitForInhibitors(kNone));
    m_machine.ask("prepare-for-sleep false");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep 1, wake")));
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
}

TEST_F(LogindPowerTest, anAnswerToTheLastSleep_doesNotLetTheNextOneGo) {
    m_machine.ask("start-logind");
    const auto port = m_power.registerForSystemPower(m_diary.handler());
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    m_machine.ask("prepare-for-sleep false");
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep 1, wake, sleep 2")));
    m_power.allowPowerChange(port, 1);
    EXPECT_TRUE(m_power.isDelaying());
    m_power.allowPowerChange(port, 2);
    EXPECT_FALSE(m_power.isDelaying());
}

TEST_F(LogindPowerTest, aLogindThatComesLateOrComesBack_isAskedForTheDelay) {
    EXPECT_NE(m_power.registerForSystemPower(m_diary.handler()), 0U);
    EXPECT_FALSE(m_power.isServed());
    m_machine.ask("start-logind");
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("stop-logind");
    ASSERT_TRUE(waitFor([this] { return !m_power.isServed(); }));
    m_machine.ask("start-logind");
    EXPECT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep 1")));
}

TEST_F(LogindPowerTest, aWakeThatLogindDidNotLiveToTell_isToldWhenItIsBack) {
    m_machine.ask("start-logind");
    m_power.registerForSystemPower(m_diary.handler());
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(m_diary.waitFor(lines("sleep 1")));
    m_machine.ask("stop-logind");
    ASSERT_TRUE(waitFor([this] { return !m_power.isServed(); }));
    m_machine.ask("start-logind");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep 1, wake")));
}

TEST_F(LogindPowerTest, aBusThatGoesAndComesBack_isConnectedToAgain) {
    m_machine.ask("start-logind");
    m_power.registerForSystemPower(m_diary.handler());
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("stop-bus");
    ASSERT_TRUE(waitFor([this] { return !m_bus.isConnected(); }));
    EXPECT_FALSE(m_power.isDelaying());
    m_machine.ask("start-bus");
    m_machine.ask("start-logind");
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    m_machine.ask("prepare-for-sleep true");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep 1")));
}

TEST_F(LogindPowerTest, aSignalFromAnybodyElse_isNotBelieved) {
    m_machine.ask("start-logind");
    m_power.registerForSystemPower(m_diary.handler());
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    auto forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
                                             QStringLiteral("org.freedesktop.login1.Manager"),
                                             QStringLiteral("PrepareForSleep"));
    forged << true;
    m_bus.connection().send(forged);
    // The bus keeps the order: what it answers now comes after the forged signal.
    QObject context;
    bool isThrough = false;
    m_bus.call(QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                              QStringLiteral("GetId")),
               &context, [&](const QDBusMessage&) { isThrough = true; });
    ASSERT_TRUE(waitFor([&] { return isThrough; }));
    EXPECT_EQ(m_diary.told, QStringList());
    m_machine.ask("prepare-for-sleep true");
    ASSERT_TRUE(waitFor([this] { return !m_diary.told.isEmpty(); }));
    EXPECT_EQ(m_diary.told, lines("sleep 1"));
    m_machine.ask("prepare-for-sleep false");
    EXPECT_TRUE(m_diary.waitFor(lines("sleep 1, wake")));
}

TEST_F(LogindPowerTest, aSleepThatLogindMissed_isToldOfByTheClocks) {
    HandClock clock;
    ClockJumpPower clocks(clock);
    LinuxPower both(m_power, clocks);
    EXPECT_NE(both.registerForSystemPower(m_diary.handler()), 0U);
    m_machine.ask("start-logind");
    ASSERT_TRUE(m_machine.waitForInhibitors(kHeld));
    clock.sleepFor(std::chrono::minutes(5));
    clocks.check();
    EXPECT_EQ(m_diary.told, lines("sleep 0, wake"));
    EXPECT_EQ(both.describe(), QStringLiteral("logind"));
    both.allowPowerChange(1, 0);
    EXPECT_EQ(m_machine.ask("inhibitors"), kHeld);
}

TEST(LogindPower, withoutAnyBus_theRootPortIsZero) {
    RecordingLog log;
    QtRunLoop runLoop(log);
    Bus bus(Bus::atAddress(QStringLiteral("unix:path=/nowhere/bus")), runLoop, log);
    LogindPower power(bus, log);
    EXPECT_EQ(power.registerForSystemPower([](PowerMessage, std::int64_t) {}), 0U);
}

TEST(ClockJumpPower, aSleep_isToldOnceItHasEnded) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary diary;
    power.registerForSystemPower(diary.handler());
    clock.advance(std::chrono::hours(1));
    power.check();
    EXPECT_EQ(diary.told, QStringList());
    clock.sleepFor(std::chrono::seconds(2));
    power.check();
    power.check();
    EXPECT_EQ(diary.told, lines("sleep 0, wake"));
}

TEST(ClockJumpPower, manySmallDifferences_addUpToASleep) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary diary;
    power.registerForSystemPower(diary.handler());
    for (int i = 0; i < 9; ++i) {
        clock.sleepFor(std::chrono::milliseconds(100));
        power.check();
    }
    EXPECT_EQ(diary.told, QStringList());
    clock.sleepFor(std::chrono::milliseconds(100));
    power.check();
    EXPECT_EQ(diary.told, lines("sleep 0, wake"));
}

TEST(ClockJumpPower, aWallClockThatIsSet_isNoSleep) {
    HandClock clock;
    ClockJumpPower power(clock);
    PowerDiary diary;
    power.registerForSystemPower(diary.handler());
    clock.setWall(clock.now() + std::chrono::hours(24));
    power.check();
    EXPECT_EQ(diary.told, QStringList());
}

} // namespace
