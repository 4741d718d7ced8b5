// SPDX-License-Identifier: MIT
#include "platform/foundation/time/DateStyles.h"

#include "tests/fakes/Announcements.h"

#include <QLocale>
#include <gtest/gtest.h>

using namespace std::chrono;

namespace {

class DateStylesTest : public testing::Test {
protected:
    ~DateStylesTest() override { QLocale::setDefault(QLocale::c()); }

    // Locales use different spaces.
    static std::string plain(QString text) {
        return str(text.replace(QChar(0x202F), u' ').replace(QChar(0xA0), u' '));
    }

    const Date m_date = Date(sys_days(year(2026) / 11 / 20)) + 19h + 5min + 59s;
};

TEST_F(DateStylesTest, inAmericanEnglish_theyAreAsPeopleThereWriteThem) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(plain(shortDate(m_date)), "11/20/26");
    EXPECT_EQ(plain(mediumDateShortTime(m_date)), "Nov 20, 2026 7:05 PM");
}

TEST_F(DateStylesTest, inGermany_theyAreAsPeopleThereWriteThem) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(plain(shortDate(m_date)), "20.11.26");
    EXPECT_EQ(plain(mediumDateShortTime(m_date)), "20. Nov. 2026 19:05");
}

TEST_F(DateStylesTest, datesLongAgo_areStillDates) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(plain(mediumDateShortTime(Date(sys_days(year(1) / 1 / 1)) + 19h)), "Jan 1, 0001 7:00 PM");
}

} // namespace
