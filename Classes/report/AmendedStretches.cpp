// SPDX-License-Identifier: MIT
#include "Classes/report/AmendedStretches.h"

#include "Classes/history/HistoryBatch.h"
#include "Classes/history/HistorySchema.h"

#include <algorithm>

namespace {

// Milliseconds. No stretch is longer.
constexpr std::int64_t kLongest = 3'600'000;

// What a stretch was at first comes first.
constexpr const char* kAmended =
    "SELECT start, start + length, n, made, amended.program, amended.title, amended.timer, amended.presence, "
    "stretches.program, stretches.title, stretches.presence FROM amended JOIN stretches USING (start, n) "
    "WHERE start >= ? AND start < ? ORDER BY start, n, made";

void addTo(QStringList& texts, const QStringList& more) {
    for (const QString& text : more)
        if (!text.isEmpty() && !texts.contains(text))
            texts << text;
}

} // namespace

AmendedStretches AmendedStretches::in(SqliteDatabase& history, qint64 from, qint64 to,
                                      const ReportNames& names) {
    AmendedStretches all;
    if (!HistorySchema::hasAmendments(history))
        return all;
    std::optional<std::int64_t> n;
    for (SqliteQuery row(history, kAmended, std::int64_t(from) - kLongest, std::int64_t(to)); row.next();) {
        if (all.m_stretches.empty() || all.m_stretches.back().start != row.integer(0) ||
            n != row.integer(2)) {
            n = row.integer(2);
            all.m_stretches.push_back({row.integer(0), row.integer(1), {}});
            RangeAnswer::Amended& amended = all.m_stretches.back().amended;
            amended.wasWork = row.integer(7) == std::int64_t(RowPresence::Work);
            if (row.integer(5) != row.integer(9))
                addTo(amended.titles, {names.title(row.integer(5))});
            if (amended.wasWork)
                amended.projects = names.projectsOf(row.integer(6), row.integer(4), row.integer(5));
        }
        all.m_stretches.back().amended.made = row.integer(3);
        if (row.integer(5) == row.integer(9) && row.integer(7) == row.integer(10))
            continue;
        if (const auto program = names.program(row.integer(8)))
            all.m_named.emplace(*program, names.title(row.integer(9)));
    }
    return all;
}

std::optional<RangeAnswer::Amended> AmendedStretches::in(qint64 from, qint64 to) const {
    std::optional<RangeAnswer::Amended> all;
    auto stretch = std::ranges::lower_bound(m_stretches, from - kLongest, {}, &Stretch::start);
    for (; stretch != m_stretches.end() && stretch->start < to; ++stretch) {
        if (stretch->end <= from)
            continue;
        if (!all)
            all.emplace(RangeAnswer::Amended{.made = 0, .wasWork = false, .titles = {}, .projects = {}});
        all->made = std::max(all->made, stretch->amended.made);
        all->wasWork = all->wasWork || stretch->amended.wasWork;
        addTo(all->titles, stretch->amended.titles);
        addTo(all->projects, stretch->amended.projects);
    }
    return all;
}
