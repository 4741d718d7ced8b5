// SPDX-License-Identifier: MIT
#include "Classes/report/CalendarRange.h"

namespace {

// Two months of bars by day, two years by week.
constexpr int kMostDays = 62;
constexpr int kMostWeeksInDays = 731;

} // namespace

CalendarRange CalendarRange::around(Kind kind, QDate day, Qt::DayOfWeek firstDayOfWeek) {
    switch (kind) {
    case Kind::Week: {
        const QDate first = day.addDays(-((day.dayOfWeek() - int(firstDayOfWeek) + 7) % 7));
        return {kind, first, first.addDays(6)};
    }
    case Kind::Month: {
        const QDate first(day.year(), day.month(), 1);
        return {kind, first, first.addMonths(1).addDays(-1)};
    }
    case Kind::Year:
        return {kind, QDate(day.year(), 1, 1), QDate(day.year(), 12, 31)};
    default:
        return {kind, day, day};
    }
}

CalendarRange CalendarRange::span(QDate one, QDate other) {
    return {Kind::Span, std::min(one, other), std::max(one, other)};
}

CalendarRange::Step CalendarRange::step() const {
    if (days() == 1)
        return Step::Stretch;
    if (m_kind == Kind::Year || days() > kMostWeeksInDays)
        return Step::Month;
    return days() > kMostDays ? Step::Week : Step::Day;
}

CalendarRange CalendarRange::previous() const {
    switch (m_kind) {
    case Kind::Month:
        return {m_kind, m_first.addMonths(-1), m_first.addDays(-1)};
    case Kind::Year:
        return {m_kind, m_first.addYears(-1), m_first.addDays(-1)};
    default:
        return {m_kind, m_first.addDays(-days()), m_last.addDays(-days())};
    }
}

CalendarRange CalendarRange::next() const {
    switch (m_kind) {
    case Kind::Month:
        return {m_kind, m_last.addDays(1), m_first.addMonths(2).addDays(-1)};
    case Kind::Year:
        return {m_kind, m_last.addDays(1), m_last.addYears(1)};
    default:
        return {m_kind, m_first.addDays(days()), m_last.addDays(days())};
    }
}

CalendarRange CalendarRange::as(Kind kind, QDate today, Qt::DayOfWeek firstDayOfWeek) const {
    if (kind == Kind::Span)
        return span(m_first, m_last);
    return around(kind, contains(today) ? today : m_first, firstDayOfWeek);
}
