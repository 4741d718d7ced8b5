// SPDX-License-Identifier: MIT
#include "Classes/report/CalendarRange.h"

#include <gtest/gtest.h>

namespace {

using Kind = CalendarRange::Kind;
using Step = CalendarRange::Step;

CalendarRange around(Kind kind, QDate day, Qt::DayOfWeek first = Qt::Monday) {
    return CalendarRange::around(kind, day, first);
}

TEST(CalendarRangeTest, aWeek_beginsOnTheLocalesFirstDay) {
    const QDate sunday(2026, 11, 22);
    EXPECT_EQ(around(Kind::Week, sunday).first(), QDate(2026, 11, 16));
    EXPECT_EQ(around(Kind::Week, sunday, Qt::Sunday).first(), sunday);
    EXPECT_EQ(around(Kind::Week, QDate(2026, 11, 21), Qt::Sunday).first(), QDate(2026, 11, 15));
    EXPECT_EQ(around(Kind::Week, sunday, Qt::Saturday).first(), QDate(2026, 11, 21));
}

TEST(CalendarRangeTest, everyKind_hasItsDays) {
    const QDate day(2024, 2, 29);
    EXPECT_EQ(around(Kind::Day, day).days(), 1);
    EXPECT_EQ(around(Kind::Week, day).days(), 7);
    EXPECT_EQ(around(Kind::Month, day).days(), 29);
    EXPECT_EQ(around(Kind::Year, day).days(), 366);
    EXPECT_EQ(around(Kind::Span, day).days(), 1);
    EXPECT_EQ(CalendarRange::span(day, QDate(2024, 2, 1)).first(), QDate(2024, 2, 1));
}

TEST(CalendarRangeTest, backAndForward_leaveNoGapAndComeBack) {
    for (const CalendarRange& range :
         {around(Kind::Day, QDate(2024, 2, 29)), around(Kind::Week, QDate(2026, 12, 30)),
          around(Kind::Month, QDate(2026, 1, 31)), around(Kind::Year, QDate(2024, 5, 5)),
          CalendarRange::span(QDate(2026, 2, 20), QDate(2026, 3, 3))}) {
        EXPECT_EQ(range.next().first(), range.last().addDays(1));
        EXPECT_EQ(range.previous().last(), range.first().addDays(-1));
        EXPECT_EQ(range.next().previous(), range);
        EXPECT_EQ(range.previous().next(), range);
    }
}

TEST(CalendarRangeTest, anotherKind_keepsTodayWhereItIsSeen) {
    const QDate today(2026, 11, 22);
    const CalendarRange year = around(Kind::Year, today);
    EXPECT_EQ(year.as(Kind::Day, today, Qt::Monday).first(), today);
    EXPECT_EQ(year.previous().as(Kind::Month, today, Qt::Monday).first(), QDate(2025, 1, 1));
    EXPECT_EQ(year.as(Kind::Span, today, Qt::Monday), CalendarRange::span(year.first(), year.last()));
}

TEST(CalendarRangeTest, longerRanges_haveLongerBars) {
    EXPECT_EQ(around(Kind::Day, QDate(2026, 1, 1)).step(), Step::Stretch);
    EXPECT_EQ(around(Kind::Span, QDate(2026, 1, 1)).step(), Step::Stretch);
    EXPECT_EQ(around(Kind::Week, QDate(2026, 1, 1)).step(), Step::Day);
    EXPECT_EQ(around(Kind::Month, QDate(2026, 1, 1)).step(), Step::Day);
    EXPECT_EQ(around(Kind::Year, QDate(2026, 1, 1)).step(), Step::Month);
    EXPECT_EQ(CalendarRange::span(QDate(2026, 1, 1), QDate(2026, 6, 1)).step(), Step::Week);
    EXPECT_EQ(CalendarRange::span(QDate(2016, 1, 1), QDate(2026, 6, 1)).step(), Step::Month);
}

} // namespace
