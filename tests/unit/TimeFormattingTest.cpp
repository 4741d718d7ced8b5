// SPDX-License-Identifier: MIT
#include "tests/fakes/Announcements.h"
#include "tests/fakes/TestEngine.h"

#include <QLocale>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::string clockString(double seconds) {
    return str(TimeTracker::timeStringForDouble(seconds));
}

class HumanTimeTest : public testing::Test {
protected:
    std::string human(double seconds) { return str(m_engine.tracker.humanTimeStringForDouble(seconds)); }

    void includeSeconds() { m_engine.fakes.defaults.setObject(kIncludeSecondsWhenCopyingTime, true); }

    TestEngine m_engine;
};

TEST(ClockString, hasTwoDigitsAFieldAndUnboundedHours) {
    EXPECT_EQ(clockString(0), "00:00:00");
    EXPECT_EQ(clockString(59.9), "00:00:59");
    EXPECT_EQ(clockString(60), "00:01:00");
    EXPECT_EQ(clockString(3599.999), "00:59:59");
    EXPECT_EQ(clockString(3661), "01:01:01");
    EXPECT_EQ(clockString(86400), "24:00:00");
    EXPECT_EQ(clockString(360000), "100:00:00");
    EXPECT_EQ(clockString(3.6e12), "1000000000:00:00");
}

TEST(ClockString, ofNegativeTime_isWhatTheArithmeticGives) {
    EXPECT_EQ(clockString(-5), "-1:-1:-5");
    EXPECT_EQ(clockString(-0.1), "-1:-1:-1");
}

TEST(ClockString, isTheSameInEveryLocale) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(clockString(36e5), "1000:00:00");
    QLocale::setDefault(QLocale::c());
}

TEST_F(HumanTimeTest, withoutSeconds_roundsTheMinutes) {
    EXPECT_EQ(human(29), "29 seconds");
    EXPECT_EQ(human(30), "1 minute");
    EXPECT_EQ(human(59.9), "1 minute");
    EXPECT_EQ(human(89), "1 minute");
    EXPECT_EQ(human(90), "2 minutes");
    EXPECT_EQ(human(150), "3 minutes");
    EXPECT_EQ(human(7260), "2 hours, 1 minute");
    EXPECT_EQ(human(3600), "1 hour");
    EXPECT_EQ(human(360000), "100 hours");
}

TEST_F(HumanTimeTest, aTimeThatNoIntegerHolds_isTheLargestOne) {
    EXPECT_EQ(human(9e22).substr(0, 25), "9223372036854775807 hours");
    EXPECT_EQ(human(-9e22).substr(0, 26), "-9223372036854775808 hours");
}

TEST_F(HumanTimeTest, aTimeThatIsNoNumber_isNone) {
    EXPECT_EQ(human(std::numeric_limits<double>::infinity()), human(0));
    includeSeconds();
    EXPECT_EQ(human(std::numeric_limits<double>::quiet_NaN()), human(0));
}

TEST_F(HumanTimeTest, aMinuteCountThatRoundsToSixty_isNoneAndCarriesNothing) {
    EXPECT_EQ(human(3569), "59 minutes");
    EXPECT_EQ(human(3570), "30 seconds");
    EXPECT_EQ(human(3599), "59 seconds");
    EXPECT_EQ(human(7169), "1 hour, 59 minutes");
    EXPECT_EQ(human(7170), "1 hour");
}

TEST_F(HumanTimeTest, withSeconds_cutsTheMinutesOffAndAlwaysSaysTheSeconds) {
    includeSeconds();
    EXPECT_EQ(human(30), "30 seconds");
    EXPECT_EQ(human(3599), "59 minutes, 59 seconds");
    EXPECT_EQ(human(3600), "1 hour, 0 seconds");
    EXPECT_EQ(human(3661), "1 hour, 1 minute, 1 second");
    EXPECT_EQ(human(7322.9), "2 hours, 2 minutes, 2 seconds");
    EXPECT_EQ(human(10983), "3 hours, 3 minutes, 3 seconds");
}

TEST_F(HumanTimeTest, noTimeAtAll_isZeroSecondsWhateverTheSetting) {
    EXPECT_EQ(human(0), "0 seconds");
    EXPECT_EQ(human(0.9), "0 seconds");
    includeSeconds();
    EXPECT_EQ(human(0), "0 seconds");
}

TEST_F(HumanTimeTest, oneAndTwo_haveFormsOfTheirOwn) {
    EXPECT_EQ(human(1), "1 second");
    EXPECT_EQ(human(2), "2 seconds");
}

TEST_F(HumanTimeTest, negativeTime_isWhatTheArithmeticGives) {
    EXPECT_EQ(human(-5), "-1 hours");
    includeSeconds();
    EXPECT_EQ(human(-5), "-1 hours, -1 minutes, -5 seconds");
}

TEST_F(HumanTimeTest, theResetCaption_namesDateAndTimeInTheUsersStyle) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(str(m_engine.tracker.lastResetDateDisplayString().replace(QChar(0x202F), u' ')),
              "Database file (reset Jan 5, 2026 9:00 AM):");
    QLocale::setDefault(QLocale::c());
}

} // namespace
