// SPDX-License-Identifier: MIT
#include "Classes/report/Moment.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

class ReportMomentTest : public testing::Test {
protected:
    std::string moment(const char* text, int dayBegins = 0) const {
        const auto found = momentOf(QString::fromUtf8(text), m_now, dayBegins);
        return found ? found->toString(QStringLiteral("ddd yyyy-MM-dd HH:mm:ss")).toStdString() : "none";
    }

    // A Friday.
    QDateTime m_now{QDate(2026, 11, 20), QTime(14, 30, 15)};
};

TEST_F(ReportMomentTest, words_areTheBeginningOfTheirDay) {
    EXPECT_EQ(moment("today"), "Fri 2026-11-20 00:00:00");
    EXPECT_EQ(moment("yesterday"), "Thu 2026-11-19 00:00:00");
    EXPECT_EQ(moment("now"), "Fri 2026-11-20 14:30:15");
}

TEST_F(ReportMomentTest, aDayOfTheWeek_isTheLastOneAndMayBeToday) {
    EXPECT_EQ(moment("friday"), "Fri 2026-11-20 00:00:00");
    EXPECT_EQ(moment("Monday"), "Mon 2026-11-16 00:00:00");
    EXPECT_EQ(moment("saturday"), "Sat 2026-11-14 00:00:00");
}

TEST_F(ReportMomentTest, datesAndTimes_areTakenAsTheyStand) {
    EXPECT_EQ(moment("2026-11-02"), "Mon 2026-11-02 00:00:00");
    EXPECT_EQ(moment("2026-11-02T09:15"), "Mon 2026-11-02 09:15:00");
}

TEST_F(ReportMomentTest, spans_areCountedBackFromNow) {
    EXPECT_EQ(moment("-90m"), "Fri 2026-11-20 13:00:15");
    EXPECT_EQ(moment("-7d"), "Fri 2026-11-13 14:30:15");
    EXPECT_EQ(moment("-3w"), "Fri 2026-10-30 14:30:15");
}

TEST_F(ReportMomentTest, whoWorksPastMidnight_isStillInTheDayBefore) {
    m_now = QDateTime(QDate(2026, 11, 21), QTime(2, 0));
    EXPECT_EQ(moment("today", 4), "Fri 2026-11-20 04:00:00");
    EXPECT_EQ(moment("friday", 4), "Fri 2026-11-20 04:00:00");
    EXPECT_EQ(moment("today", 0), "Sat 2026-11-21 00:00:00");
}

// In Berlin, where the clock is set from 2:00 to 3:00 on 29 March, and from 3:00 to 2:00 on 25 October.
class ReportMomentInBerlinTest : public ReportMomentTest {
protected:
    ReportMomentInBerlinTest() { setZone("Europe/Berlin"); }
    ~ReportMomentInBerlinTest() override { setZone(m_before); }

    std::string utc(const char* text, int dayBegins) const {
        const auto found = momentOf(QString::fromUtf8(text), m_now, dayBegins);
        return found ? found->toUTC().toString(QStringLiteral("MM-dd HH:mm:ss")).toStdString() : "none";
    }

private:
    static void setZone(const QByteArray& zone) {
        if (zone.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", zone);
        ::tzset();
    }

    QByteArray m_before = qgetenv("TZ");
};

TEST_F(ReportMomentInBerlinTest, aDayWhoseFirstHourIsSkipped_beginsWithTheNext) {
    EXPECT_EQ(utc("2026-03-28", 2), "03-28 01:00:00");
    EXPECT_EQ(utc("2026-03-29", 2), "03-29 01:00:00");
    EXPECT_EQ(utc("2026-03-30", 2), "03-30 00:00:00");
}

TEST_F(ReportMomentInBerlinTest, aDayWhoseFirstHourComesTwice_beginsWithTheFirst) {
    EXPECT_EQ(utc("2026-10-25", 2), "10-25 00:00:00");
    // Whatever was asked for before.
    EXPECT_EQ(utc("2026-12-01", 2), "12-01 01:00:00");
    EXPECT_EQ(utc("2026-10-25", 2), "10-25 00:00:00");
    EXPECT_EQ(utc("2026-10-25T02:30", 2), "10-25 00:30:00");
}

TEST_F(ReportMomentInBerlinTest, aTimeThatIsSkipped_isTheMomentAfter) {
    EXPECT_EQ(utc("2026-03-29T01:59:59", 0), "03-29 00:59:59");
    EXPECT_EQ(utc("2026-03-29T02:30", 0), "03-29 01:00:00");
    EXPECT_EQ(utc("2026-03-29T02:30:15", 0), "03-29 01:00:00");
    EXPECT_EQ(utc("2026-03-29T03:00", 0), "03-29 01:00:00");
    m_now = QDateTime(QDate(2026, 3, 30), QTime(2, 30));
    EXPECT_EQ(utc("-1d", 0), "03-29 01:00:00");
}

TEST_F(ReportMomentTest, anythingElse_isNoMoment) {
    for (const char* text : {"", "tomorrow", "2026-13-01", "20.11.2026", "7d", "-7", "-d", "-7y",
                             "2026-11-20T25:00", "2026-11-20T", "2026-02-30T10:00"})
        EXPECT_EQ(moment(text), "none") << text;
}

} // namespace
