// SPDX-License-Identifier: MIT
// The scheduled archive on the days on which the clocks change, and on a machine that sleeps most of the
// time.
#include "tests/unit/PeriodicSaveScene.h"

namespace {

using namespace std::chrono_literals;

// Clocks go forward on 29 March and back on 25 October 2026, at two and three o'clock.
class PeriodicSaveInBerlin : public PeriodicSaveTest {
protected:
    explicit PeriodicSaveInBerlin(const char* zone = "Europe/Berlin")
        : PeriodicSaveTest(zone) {}

    void chooseTime(int hour, int minute) {
        const auto time = QDateTime(QDate(2020, 1, 1), QTime(hour, minute)).toMSecsSinceEpoch();
        fakes.defaults.setObject(kPeriodicSaveTime, Date(std::chrono::milliseconds(time)));
    }

    // A machine that wakes for some minutes in every hour, with something counted every day.
    void passDays(int days) {
        for (int hour = 0; hour < days * 24; ++hour) {
            if (isCleared())
                addMail();
            fakes.clock.sleepFor(57min);
            fakes.runLoop.advance(3min);
        }
    }

    std::string tables() {
        return str(QDir(archive()).entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name).join(u' '));
    }
};

TEST_F(PeriodicSaveInBerlin, sleptThroughTheEveningAndOpenedInTheMorning_isArchivedAsTheEveningsDay) {
    setClock("2026-11-18T18:10:00");
    turnOn();
    fakes.runLoop.advance(5min);
    fakes.clock.sleepFor(15h);
    fakes.runLoop.advance(2min);
    EXPECT_EQ(files(archive()), "2026-11-18.csv 2026-11-18.tkd");
    EXPECT_EQ(firing(), "2026-11-19 19:10");
    addMail();
    fakes.clock.sleepFor(10h);
    fakes.runLoop.advance(2min);
    EXPECT_EQ(tables(), "2026-11-18.csv 2026-11-19.csv") << "the evening of the waking day has its own";
    EXPECT_EQ(cleared, 2);
}

TEST_F(PeriodicSaveInBerlin, aChosenDayThatWasSleptThrough_isMadeUpForOnADayThatIsNot) {
    setClock("2026-11-19T18:10:00");
    turnOn(kThursday);
    fakes.clock.sleepFor(39h);
    fakes.runLoop.advance(2min);
    EXPECT_EQ(files(archive()), "2026-11-19.csv 2026-11-19.tkd");
    passDays(6);
    EXPECT_EQ(tables(), "2026-11-19.csv 2026-11-26.csv");
}

TEST_F(PeriodicSaveInBerlin, aLateEveningThatFiresAfterMidnight_isStillThatDay) {
    chooseTime(23, 30);
    setClock("2026-11-19T14:20:00");
    turnOn(kThursday);
    EXPECT_EQ(firing(), "2026-11-20 00:20");
    passDays(8);
    EXPECT_EQ(tables(), "2026-11-19.csv 2026-11-26.csv");
    EXPECT_EQ(cleared, 2);
}

TEST_F(PeriodicSaveInBerlin, afterTheClocksWentForward_itFiresAtTheSameTimeOfDay) {
    setClock("2026-03-28T14:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-03-28 19:30");
    fakes.runLoop.advance(6h);
    EXPECT_EQ(firing(), "2026-03-29 19:30");
}

TEST_F(PeriodicSaveInBerlin, onTheDayOfTwentyFiveHours_itFiresAtTheSameTimeOfDay) {
    setClock("2026-10-25T18:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-10-25 19:30");
    setClock("2026-10-24T14:30:00");
    turnOn();
    fakes.runLoop.advance(6h);
    EXPECT_EQ(firing(), "2026-10-25 19:30");
}

TEST_F(PeriodicSaveInBerlin, aTimeThatDoesNotExist_isAnHourLaterThatDay) {
    chooseTime(2, 30);
    setClock("2026-03-28T12:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-03-29 03:30");
    passDays(2);
    EXPECT_EQ(tables(), "2026-03-29.csv 2026-03-30.csv");
    EXPECT_EQ(firing(), "2026-03-31 02:30");
}

TEST_F(PeriodicSaveInBerlin, aTimeThatExistsTwice_firesOnce) {
    chooseTime(2, 30);
    setClock("2026-10-24T12:30:00");
    turnOn();
    passDays(2);
    EXPECT_EQ(tables(), "2026-10-25.csv 2026-10-26.csv");
    EXPECT_EQ(cleared, 2);
}

TEST_F(PeriodicSaveInBerlin, theRegisteredTime_isSevenInTheEveningThereToo) {
    setClock("2026-07-01T14:30:00");
    turnOn();
    EXPECT_EQ(firing(), "2026-07-01 19:30");
}

// Clocks go back on 4 April and forward on 6 September 2026, both at midnight.
class PeriodicSaveInSantiago : public PeriodicSaveInBerlin {
protected:
    PeriodicSaveInSantiago()
        : PeriodicSaveInBerlin("America/Santiago") {}
};

TEST_F(PeriodicSaveInSantiago, anHourBeforeMidnightThatComesTwice_isOneEvening) {
    chooseTime(23, 15);
    setClock("2026-04-03T20:20:00");
    turnOn();
    passDays(4);
    EXPECT_EQ(tables(), "2026-04-03.csv 2026-04-04.csv 2026-04-05.csv 2026-04-06.csv");
    EXPECT_EQ(cleared, 4);
}

TEST_F(PeriodicSaveInSantiago, aDayThatBeginsAtOne_hasItsArchiveAsEveryOther) {
    chooseTime(0, 15);
    setClock("2026-09-04T20:20:00");
    turnOn();
    passDays(3);
    EXPECT_EQ(tables(), "2026-09-05.csv 2026-09-06.csv 2026-09-07.csv");
    EXPECT_EQ(cleared, 3);
}

} // namespace
