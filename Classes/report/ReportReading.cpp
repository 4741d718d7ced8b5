// SPDX-License-Identifier: MIT
#include "Classes/report/ReportReading.h"

#include "Classes/history/HistoryFile.h"
#include "Classes/report/Moment.h"

#include <QFileInfo>

#include <algorithm>

namespace {

// Milliseconds. No time zone is further from UTC.
constexpr qint64 kFarthestZone = 26 * 3'600'000;
// Milliseconds. No stretch is longer, because none crosses a full hour.
constexpr qint64 kLongest = 3'600'000;

RecordedStretch::Presence presenceOf(std::int64_t number) {
    return RecordedStretch::Presence(std::clamp<std::int64_t>(number, 0, 2));
}

// `first` is included, `last` is not.
struct Days {
    QDate first;
    QDate end;

    bool areNone() const { return first >= end; }
    bool have(QDate day) const { return first <= day && day < end; }
};

Days wholeDaysOf(const ReportRequest& request, int dayBegins, const UnwrittenRows& unwritten) {
    const bool isFine = std::ranges::any_of(
        request.keys, [](ReportKey key) { return key == ReportKey::Hour || key == ReportKey::Stretch; });
    if (isFine)
        return {};
    Days days{dayOf(request.from, dayBegins), dayOf(request.to, dayBegins)};
    if (request.from != beginningOf(days.first, dayBegins))
        days.first = days.first.addDays(1);
    // The sums of a day are out of date when one of its rows is.
    for (const RecordedStretch& stretch : unwritten.stretches())
        days.end = std::min(days.end, Report::dayOf(stretch, dayBegins));
    return days;
}

void readStretches(Report& report, SqliteDatabase& history, qint64 from, qint64 to, const Days& left,
                   int dayBegins, const UnwrittenRows& unwritten) {
    SqliteQuery row(history,
                    "SELECT start, length, offset, program, title, timer, presence FROM stretches "
                    "JOIN timers ON timers.id = timer WHERE start >= ? AND start < ? AND NOT deleted "
                    "ORDER BY start, n",
                    std::int64_t(from), std::int64_t(to));
    while (row.next()) {
        const RecordedStretch stretch{
            row.integer(0), row.integer(1), int(row.integer(2)),       row.integer(3),
            row.integer(4), row.integer(5), presenceOf(row.integer(6))};
        if (!unwritten.replace(stretch.start) &&
            (left.areNone() || !left.have(Report::dayOf(stretch, dayBegins))))
            report.add(stretch);
    }
}

void readDays(Report& report, SqliteDatabase& history, const Days& days) {
    SqliteQuery row(history,
                    "SELECT day, program, title, timer, presence, length FROM days "
                    "JOIN timers ON timers.id = timer WHERE day >= ? AND day < ? AND NOT deleted",
                    historyDay(days.first), historyDay(days.end));
    while (row.next()) {
        const auto day = int(row.integer(0));
        report.addDay(QDate(day / 10000, day / 100 % 100, day % 100),
                      {0, row.integer(5), 0, row.integer(1), row.integer(2), row.integer(3),
                       presenceOf(row.integer(4))});
    }
}

// The sums of months have no titles.
bool isByMonths(const ReportRequest& request) {
    return request.search.isEmpty() && std::ranges::none_of(request.keys, [](ReportKey key) {
               return key == ReportKey::Title || key == ReportKey::Day || key == ReportKey::Week;
           });
}

Days wholeMonthsOf(const Days& days) {
    const QDate first(days.first.year(), days.first.month(), 1);
    return {first == days.first ? first : first.addMonths(1), QDate(days.end.year(), days.end.month(), 1)};
}

void readMonths(Report& report, SqliteDatabase& history, const Days& months) {
    SqliteQuery row(history,
                    "SELECT month, program, timer, presence, length FROM months "
                    "JOIN timers ON timers.id = timer WHERE month >= ? AND month < ? AND NOT deleted",
                    historyDay(months.first) / 100, historyDay(months.end) / 100);
    while (row.next()) {
        const auto month = int(row.integer(0));
        report.addDay(QDate(month / 100, month % 100, 1),
                      {0, row.integer(4), 0, row.integer(1), 0, row.integer(2), presenceOf(row.integer(3))});
    }
}

void readWholeDays(Report& report, SqliteDatabase& history, const ReportRequest& request, const Days& days) {
    const Days months = isByMonths(request) && !report.needsTitles() ? wholeMonthsOf(days) : Days();
    if (months.areNone())
        return readDays(report, history, days);
    readDays(report, history, {days.first, months.first});
    readMonths(report, history, months);
    readDays(report, history, {months.end, days.end});
}

} // namespace

SqliteDatabase::Mode howToRead(const QString& path) {
    // The journal of a link lies beside what it leads to.
    const bool isAtRest = !QFileInfo::exists(QFileInfo(path).canonicalFilePath() + QStringLiteral("-wal"));
    return isAtRest ? SqliteDatabase::Mode::AtRest : SqliteDatabase::Mode::Read;
}

void readInto(Report& report, SqliteDatabase& history, const ReportRequest& request, int dayBegins,
              const UnwrittenRows& unwritten) {
    const qint64 from = request.from.toMSecsSinceEpoch();
    const qint64 to = request.to.toMSecsSinceEpoch();
    const Days days = wholeDaysOf(request, dayBegins, unwritten);
    const auto readPart = [&](qint64 begin, qint64 end) {
        readStretches(report, history, begin, end, days, dayBegins, unwritten);
    };
    for (const RecordedStretch& stretch : unwritten.stretches())
        report.add(stretch);
    if (days.areNone())
        return readPart(from - kLongest, to);
    // The parts of the range that are no whole days are read stretch by stretch. Days in other time zones
    // began at another moment, so they are read the same way.
    const qint64 firstDay = beginningOf(days.first, dayBegins).toMSecsSinceEpoch();
    const qint64 lastDay = beginningOf(days.end, dayBegins).toMSecsSinceEpoch();
    readPart(from - kLongest, std::min(firstDay + kFarthestZone, to));
    readPart(std::max(lastDay, firstDay + 2 * kFarthestZone) - kFarthestZone, to);
    readWholeDays(report, history, request, days);
}
