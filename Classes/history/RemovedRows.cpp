// SPDX-License-Identifier: MIT
#include "Classes/history/RemovedRows.h"

#include <algorithm>
#include <limits>

namespace {

// Whether a row lies in what was forgotten, be it in part: rather too little comes back than too much.
bool liesIn(const HistoryChange::Forgotten& forgotten, const RemovedRows::Row& row) {
    const auto touches = [&](std::int64_t from, std::int64_t to) {
        return row.start < to && row.start + row.length > from;
    };
    if (!forgotten.times.isEmpty())
        return std::ranges::any_of(forgotten.times.pieces,
                                   [&](const auto& piece) { return touches(piece.from, piece.to); });
    return touches(forgotten.from.value_or(std::numeric_limits<std::int64_t>::min()),
                   forgotten.to.value_or(std::numeric_limits<std::int64_t>::max()));
}

bool isMeant(const HistoryChange::Forgotten& forgotten, const QString& program, const QString& title) {
    if (forgotten.program && *forgotten.program != program)
        return false;
    if (const auto& only = forgotten.times.only;
        !only.empty() && std::ranges::find(only, Amendment::Whose{program, title}) == only.end())
        return false;
    if (!forgotten.title)
        return true;
    return forgotten.isTitlePart ? title.contains(*forgotten.title, Qt::CaseInsensitive)
                                 : title == *forgotten.title;
}

} // namespace

void RemovedRows::follow(const HistoryChange::Moved& change) {
    const auto& [from, to] = change.move;
    for (auto& [number, known] : timers) {
        RowTimer& timer = known.timer;
        const bool isWindow = from.window && to.window;
        if (known.deleted != 0 || timer.application != from.application ||
            (isWindow && timer.window != from.window))
            continue;
        timer.application = to.application;
        if (isWindow)
            timer.window = to.window;
    }
}

void RemovedRows::follow(const HistoryChange::Deleted& change) {
    for (const auto& [application, window] : change.timers) {
        const std::int64_t deleted = window ? 1 : 2;
        for (auto& [number, known] : timers)
            if (known.timer.application == application && (!window || known.timer.window == window) &&
                known.deleted == (change.isDeleted ? 0 : deleted))
                known.deleted = change.isDeleted ? deleted : 0;
    }
}

void RemovedRows::follow(const HistoryChange::Forgotten& change) {
    const auto isForgotten = [&](const What& what) {
        return what.program != 0 && isMeant(change, programs.at(what.program), titles.at(what.title));
    };
    std::erase_if(rows, [&](const Row& row) { return liesIn(change, row) && isForgotten(row.what); });
    for (Row& row : rows)
        for (Before& before : row.before)
            if (liesIn(change, row) && isForgotten(before.what))
                before.what = {0, 0, 0, before.what.presence};
}
