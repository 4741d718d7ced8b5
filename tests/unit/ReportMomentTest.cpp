// SPDX-License-Identifier: MIT
#include "helpers/ticklog-report/Moment.h"

#include <gtest/gtest.h>

#include <QTimeZone>

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

TEST_F(ReportMomentTest, anythingElse_isNoMoment) {
    for (const char* text :
         {"", "tomorrow", "2026-13-01", "20.11.2026", "7d", "-7", "-d", "-7y", "2026-11-20T25:00"})
        EXPECT_EQ(moment(text), "none") << text;
}

} // namespace
