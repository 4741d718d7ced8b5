// SPDX-License-Identifier: MIT
#include "Classes/report/OverlaidTime.h"

#include "Classes/report/RecordedNames.h"

#include <algorithm>

namespace {

// Milliseconds. No stretch is longer.
constexpr std::int64_t kLongest = 3'600'000;

struct Recorded {
    Amendment::Piece time;
    std::pair<std::int64_t, std::int64_t> whose;
};

// In order of time. Those of deleted timers lie there unseen, and are forgotten with the rest.
std::vector<Recorded> recordedIn(SqliteDatabase& history, const UnwrittenRows& unwritten,
                                 const Amendment::Piece& piece) {
    std::vector<Recorded> all;
    for (SqliteQuery row(history,
                         "SELECT start, start + length, program, title FROM stretches "
                         "WHERE start >= ? AND start < ?",
                         piece.from - kLongest, piece.to);
         row.next();)
        if (!unwritten.replace(row.integer(0)))
            all.push_back({{row.integer(0), row.integer(1)}, {row.integer(2), row.integer(3)}});
    for (const RecordedStretch& stretch : unwritten.stretches())
        all.push_back({{stretch.start, stretch.end()}, {stretch.program, stretch.title}});
    std::ranges::stable_sort(all, {}, [](const Recorded& one) { return one.time.from; });
    return all;
}

bool lieOverEachOther(const std::vector<Recorded>& all) {
    std::int64_t end = std::numeric_limits<std::int64_t>::min();
    return std::ranges::any_of(all, [&](const Recorded& one) {
        const std::int64_t before = std::exchange(end, std::max(end, one.time.to));
        return one.time.from < before;
    });
}

} // namespace

std::vector<Amendment::Whose> overlaid(SqliteDatabase& history, const UnwrittenRows& unwritten,
                                       const RecordedNames& names,
                                       const std::vector<Amendment::Piece>& pieces,
                                       const std::set<Amendment::Whose>& shown) {
    std::vector<Amendment::Whose> meant;
    if (pieces.empty())
        return meant;
    const std::vector<Recorded> all = recordedIn(history, unwritten, {pieces.front().from, pieces.back().to});
    if (!lieOverEachOther(all))
        return meant;
    std::set<std::pair<std::int64_t, std::int64_t>> seen;
    for (const Recorded& one : all) {
        const auto [program, title] = one.whose;
        if (!seen.insert(one.whose).second)
            continue;
        if (const auto name = names.program(program); name && shown.contains({*name, names.title(title)}))
            meant.push_back(names.recorded(program, title));
    }
    return meant;
}
