// SPDX-License-Identifier: MIT
#include "Classes/report/TimeSheet.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace {

qint64 wholeSeconds(qint64 milliseconds) {
    return (milliseconds + 500) / 1000;
}

} // namespace

qint64 roundedTime(qint64 seconds, const SheetRounding& rounding) {
    const qint64 unit = rounding.minutes * qint64(60);
    if (unit <= 0)
        return seconds;
    const qint64 above = rounding.to == SheetRounding::To::Up ? unit - 1 : unit / 2;
    return (seconds + above) / unit * unit;
}

qint64 TimeSheet::Row::sum() const {
    return std::accumulate(cells.begin(), cells.end(), qint64(0));
}

TimeSheet::TimeSheet(const std::vector<RangeAnswer::Bar>& bars, QDate first, QDate last,
                     const SheetRounding& rounding)
    : m_first(first)
    , m_days(int(first.daysTo(last)) + 1) {
    std::map<QString, Row> rows;
    for (const auto& bar : bars) {
        const qint64 day = first.daysTo(bar.first);
        if (day < 0 || day >= m_days)
            continue;
        for (const auto& project : bar.projects) {
            Row& row =
                rows.try_emplace(project.name, Row{project.name, std::vector<qint64>(std::size_t(m_days))})
                    .first->second;
            row.cells[std::size_t(day)] += wholeSeconds(project.length);
        }
    }
    for (auto& [name, row] : rows)
        m_rows.push_back(std::move(row));
    std::ranges::stable_sort(m_rows, std::ranges::greater(), &Row::sum);
    m_measured = sum();
    round(rounding);
}

void TimeSheet::round(const SheetRounding& rounding) {
    if (rounding.minutes <= 0)
        return;
    for (std::size_t day = 0; day < std::size_t(m_days); ++day)
        if (rounding.of == SheetRounding::Of::Day)
            roundDay(day, rounding);
        else
            for (Row& row : m_rows)
                row.cells[day] = roundedTime(row.cells[day], rounding);
}

// Each project gets its whole units; those that are left of the day go to the projects that miss them most.
void TimeSheet::roundDay(std::size_t day, const SheetRounding& rounding) {
    const qint64 unit = rounding.minutes * qint64(60);
    qint64 measured = 0;
    for (const Row& row : m_rows)
        measured += row.cells[day];
    qint64 left = roundedTime(measured, rounding) / unit;
    std::vector<std::pair<qint64, Row*>> rests;
    for (Row& row : m_rows) {
        const qint64 units = row.cells[day] / unit;
        left -= units;
        if (row.cells[day] % unit > 0)
            rests.emplace_back(row.cells[day] % unit, &row);
        row.cells[day] = units * unit;
    }
    std::ranges::stable_sort(rests, std::ranges::greater(), &std::pair<qint64, Row*>::first);
    for (const auto& [rest, row] : rests)
        if (left-- > 0)
            row->cells[day] += unit;
}

std::vector<qint64> TimeSheet::sums() const {
    std::vector<qint64> sums(std::size_t(m_days), 0);
    for (const Row& row : m_rows)
        for (std::size_t day = 0; day < sums.size(); ++day)
            sums[day] += row.cells[day];
    return sums;
}

qint64 TimeSheet::sum() const {
    return std::accumulate(m_rows.begin(), m_rows.end(), qint64(0),
                           [](qint64 sum, const Row& row) { return sum + row.sum(); });
}
