// SPDX-License-Identifier: MIT
#include "Classes/report/TimeSheet.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <optional>

namespace {

qint64 wholeSeconds(qint64 milliseconds) {
    return (milliseconds + 500) / 1000;
}

qint64 lengthOf(const std::vector<RangeAnswer::Entry>& entries) {
    return std::accumulate(
        entries.begin(), entries.end(), qint64(0),
        [](qint64 length, const RangeAnswer::Entry& entry) { return length + entry.length; });
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
    // Of the days with time that is in several rows. A program never shares its time.
    std::vector<std::optional<qint64>> worked(std::size_t(m_days), std::nullopt);
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
        if (const qint64 work = lengthOf(bar.programs); lengthOf(bar.projects) > work)
            worked[std::size_t(day)] = wholeSeconds(work);
    }
    for (auto& [name, row] : rows)
        m_rows.push_back(std::move(row));
    std::ranges::stable_sort(m_rows, std::ranges::greater(), &Row::sum);
    m_hasSharedTime = std::ranges::any_of(worked, &std::optional<qint64>::has_value);
    for (std::size_t day = 0; day < worked.size(); ++day) {
        const qint64 measured = std::min(worked[day].value_or(cellsOf(day)), cellsOf(day));
        const qint64 work = roundedTime(measured, rounding);
        m_measured += measured;
        round(day, work, rounding);
        m_sums.push_back(worked[day] ? std::min(work, cellsOf(day)) : cellsOf(day));
    }
}

void TimeSheet::round(std::size_t day, qint64 work, const SheetRounding& rounding) {
    if (rounding.minutes <= 0)
        return;
    if (rounding.of == SheetRounding::Of::Day)
        return spread(day, work, rounding);
    for (Row& row : m_rows)
        row.cells[day] = roundedTime(row.cells[day], rounding);
}

// Each project gets its whole units; those that are left of the day go to the projects that miss them most.
void TimeSheet::spread(std::size_t day, qint64 work, const SheetRounding& rounding) {
    const qint64 unit = rounding.minutes * qint64(60);
    qint64 left = roundedTime(cellsOf(day), rounding) / unit;
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
        if (left > 0 && row->cells[day] < work) {
            row->cells[day] += unit;
            --left;
        }
}

qint64 TimeSheet::cellsOf(std::size_t day) const {
    return std::accumulate(m_rows.begin(), m_rows.end(), qint64(0),
                           [day](qint64 sum, const Row& row) { return sum + row.cells[day]; });
}

qint64 TimeSheet::sum() const {
    return std::accumulate(m_sums.begin(), m_sums.end(), qint64(0));
}
