// SPDX-License-Identifier: MIT
#include "Classes/engine/AbsenceWatch.h"
#include "platform/foundation/time/LocalTime.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr double kMinute = 60;

class AbsenceWatchTest : public testing::Test {
protected:
    AbsenceWatchTest() {
        day.fakes.defaults.setObject(kMinutesUntilIdle, 5);
        ask(15);
        day.front("Mail", "Inbox");
        day.start();
        day.seconds(10 * kMinute);
    }

    void ask(int minutes) {
        day.fakes.defaults.setObject(kAskAfterMinutes, minutes);
        day.fakes.defaults.setObject(kAskAfterAbsence, true);
    }

    // Minutes after nine, rounded: "10-40 Mail [Inbox]".
    static QString textOf(const Absence& absence) {
        const auto minutesOf = [](Date date) {
            const QDateTime time = localTime(date);
            return qRound(double(QDateTime(time.date(), QTime(9, 0)).msecsTo(time)) / 60'000);
        };
        return QStringLiteral("%1-%2 %3 [%4]")
            .arg(minutesOf(absence.from))
            .arg(minutesOf(absence.to))
            .arg(absence.before.program, absence.before.title);
    }

    std::string told() const { return log.join(QStringLiteral(", ")).toStdString(); }

    Day day;
    QStringList log;
    bool isStillOpen = true;
    AbsenceWatch watch{day.tracker,
                       day.fakes.notifications,
                       day.fakes.defaults,
                       day.fakes.clock,
                       {.cameBack = [this](const Absence& absence) { log << textOf(absence); },
                        .goesOn =
                            [this](const Absence& absence) {
                                log << QStringLiteral("not ") + textOf(absence);
                                return isStillOpen;
                            }}};
};

TEST_F(AbsenceWatchTest, whoComesBack_isToldOnceWithTheLastInputAsTheBeginning) {
    day.idle(30 * kMinute);
    EXPECT_EQ(told(), "") << "nobody is back yet";
    day.seconds(5);
    EXPECT_EQ(told(), "10-40 Mail [Inbox]");
    day.seconds(kMinute);
    EXPECT_EQ(told(), "10-40 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, aShorterAbsence_isNoneToAskAbout) {
    day.idle(14 * kMinute);
    day.seconds(5);
    EXPECT_EQ(told(), "");
    ask(5);
    day.idle(14 * kMinute);
    day.seconds(5);
    EXPECT_EQ(told(), "24-38 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, aLockWithoutIdleness_isAnAbsence) {
    day.fakes.defaults.setObject(kEnableIdleDetection, false);
    day.front("ScreenSaverEngine");
    day.seconds(20 * kMinute);
    day.front("Mail", "Inbox");
    day.seconds(5);
    EXPECT_EQ(told(), "10-30 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, sleep_isAnAbsence) {
    day.asleep(60 * kMinute);
    day.seconds(5);
    EXPECT_EQ(told(), "10-70 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, idlenessLockAndSleepInARow_areOneAbsence) {
    day.idle(10 * kMinute);
    day.front("ScreenSaverEngine");
    day.idle(kMinute);
    day.asleep(60 * kMinute);
    day.idle(kMinute);
    day.front("Editor", "a.txt");
    day.seconds(5);
    EXPECT_EQ(told(), "10-82 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, aWindowThatComesUpByItself_isNobody) {
    day.idle(20 * kMinute);
    day.front("Calendar", "Reminder");
    day.idle(20 * kMinute);
    EXPECT_EQ(told(), "");
    day.seconds(5);
    EXPECT_EQ(told(), "10-50 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, aMachineThatWakesByItself_isNobody) {
    day.asleep(60 * kMinute);
    day.idle(20 * kMinute);
    day.seconds(5);
    EXPECT_EQ(told(), "10-70 Mail [Inbox], not 10-70 Mail [Inbox], 10-90 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, anAbsenceThatGoesOnAfterItWasAnswered_isTheRestOfIt) {
    isStillOpen = false;
    day.asleep(60 * kMinute);
    day.idle(20 * kMinute);
    day.seconds(5);
    EXPECT_EQ(told(), "10-70 Mail [Inbox], not 10-70 Mail [Inbox], 70-90 Mail [Inbox]");
}

TEST_F(AbsenceWatchTest, theNextAbsence_isOneOfItsOwn) {
    day.idle(20 * kMinute);
    day.seconds(2 * kMinute);
    day.front("Editor", "a.txt");
    day.seconds(2 * kMinute);
    day.idle(20 * kMinute);
    day.seconds(5);
    EXPECT_EQ(told(), "10-30 Mail [Inbox], 34-54 Editor [a.txt]");
}

TEST_F(AbsenceWatchTest, aPauseThatTheUserOrders_isNoAbsence) {
    day.stop();
    day.idle(60 * kMinute);
    day.start();
    day.seconds(5);
    EXPECT_EQ(told(), "");
}

TEST_F(AbsenceWatchTest, aClockThatIsSet_makesNoAbsence) {
    day.fakes.clock.setWall(day.fakes.clock.now() + 1h);
    day.seconds(5);
    day.idle(20 * kMinute);
    day.fakes.clock.setWall(day.fakes.clock.now() + 1h);
    day.seconds(5);
    EXPECT_EQ(told(), "") << "nobody can say which time of the day was spent away";
}

TEST_F(AbsenceWatchTest, switchedOff_hearsNothing) {
    day.idle(20 * kMinute);
    day.fakes.defaults.setObject(kAskAfterAbsence, false);
    day.seconds(5);
    day.idle(20 * kMinute);
    ask(15);
    day.seconds(5);
    EXPECT_EQ(told(), "") << "what began before it was switched on is not known";
}

TEST_F(AbsenceWatchTest, withoutALength_asksFromAQuarterOfAnHour) {
    day.fakes.defaults.removeObject(kAskAfterMinutes);
    EXPECT_EQ(AbsenceWatch::shortestAbsence(day.fakes.defaults), 15min);
    day.fakes.defaults.setObject(kAskAfterMinutes, -3);
    EXPECT_EQ(AbsenceWatch::shortestAbsence(day.fakes.defaults), 15min);
    day.fakes.defaults.removeObject(kAskAfterAbsence);
    EXPECT_FALSE(AbsenceWatch::isWished(day.fakes.defaults)) << "off until wished for";
}

} // namespace
