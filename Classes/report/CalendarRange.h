// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QDateTime>

#include <optional>

// The range of days that a person looks at.
class CalendarRange {
public:
    // "Span" is from any day to any other.
    enum class Kind : unsigned char { Day, Week, Month, Year, Span };
    // What a bar in the picture of a range stands for. "Stretch" is a picture without bars, of one day.
    enum class Step : unsigned char { Stretch, Day, Week, Month };

    // The day, week, month or year with this day in it; of a span the day alone.
    static CalendarRange around(Kind kind, QDate day, Qt::DayOfWeek firstDayOfWeek);
    // Both days are included, in whichever order they are given.
    static CalendarRange span(QDate one, QDate other);

    Kind kind() const { return m_kind; }
    QDate first() const { return m_first; }
    // The last day itself.
    QDate last() const { return m_last; }
    int days() const { return int(m_first.daysTo(m_last)) + 1; }
    bool contains(QDate day) const { return m_first <= day && day <= m_last; }
    Step step() const;

    // The range before or after this one, of the same kind and, for a span, of as many days.
    CalendarRange previous() const;
    CalendarRange next() const;
    // The one of another kind that a person expects who looks at this one: with today in it if today is in
    // this one, else with the first day of this one.
    CalendarRange as(Kind kind, QDate today, Qt::DayOfWeek firstDayOfWeek) const;

    friend bool operator==(const CalendarRange&, const CalendarRange&) = default;

private:
    CalendarRange(Kind kind, QDate first, QDate last)
        : m_kind(kind)
        , m_first(first)
        , m_last(last) {}

    Kind m_kind;
    QDate m_first;
    QDate m_last;
};
