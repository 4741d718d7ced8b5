// SPDX-License-Identifier: MIT
// What a person says about the past, and undoing that. A row that becomes another keeps its place, and what it
// was is kept beside it, under the same key.
#include "Classes/history/HistoryFile.h"
#include "Classes/history/HistoryFinding.h"
#include "Classes/history/LocalHours.h"

#include <algorithm>

namespace {

const QByteArray kNoProject(1, '\0');

} // namespace

QByteArray historyBytes(const std::optional<RowProject>& project) {
    if (!project)
        return QByteArray("");
    return project->identity ? project->identity->bytes() : kNoProject;
}

std::optional<RowProject> historyProject(const QByteArray& bytes) {
    if (bytes == kNoProject)
        return RowProject();
    const auto identity = Identity::fromBytes(bytes);
    return identity ? std::optional(RowProject{identity}) : std::nullopt;
}

void HistoryFile::apply(const HistoryChange::Amended& change) {
    const auto& [what, made] = change;
    if (what.project && what.project->identity)
        sqliteRun(m_database, "INSERT OR REPLACE INTO projects VALUES (?, ?)",
                  what.project->identity->bytes(), what.projectName);
    const MeantStretches meant(m_database, what.only);
    for (const Amendment::Piece& piece : what.pieces) {
        cutAt(piece.from);
        cutAt(piece.to);
        if (what.kind == Amendment::Kind::Change) {
            for (const Key& key : keysIn(piece, meant))
                changeRow(key, what, made);
            continue;
        }
        const HistoryRow booked{.start = 0,
                                .length = 0,
                                .offset = 0,
                                .program = kByHandName,
                                .title = what.name.value_or(QString()),
                                .timer = {.application = {}, .window = {}, .project = what.project},
                                .presence = RowPresence::ByHand};
        for (const Amendment::Piece& free : freeIn(piece))
            book(free, booked, made);
    }
}

// Where nobody worked. After the clock was set back, idle time may lie over work, and a minute is booked once.
std::vector<Amendment::Piece> HistoryFile::freeIn(const Amendment::Piece& piece) {
    std::vector<Amendment::Piece> free;
    std::int64_t from = piece.from;
    for (SqliteQuery row(m_database,
                         "SELECT start, start + length FROM stretches JOIN timers ON timers.id = timer "
                         "WHERE start >= ? AND start < ? AND presence <> ? AND NOT deleted ORDER BY start",
                         piece.from - LocalHours::kHour, piece.to, std::int64_t(RowPresence::Idle));
         row.next();) {
        if (row.integer(0) > from)
            free.push_back({from, row.integer(0)});
        from = std::max(from, row.integer(1));
    }
    if (from < piece.to)
        free.push_back({from, piece.to});
    return free;
}

// In a piece without work: its gaps, and its idle time once.
void HistoryFile::book(const Amendment::Piece& free, const HistoryRow& booked, std::int64_t made) {
    cutAt(free.from);
    cutAt(free.to);
    const MeantStretches all(m_database, {});
    std::int64_t end = free.from;
    for (const Key& key : keysIn(free, all)) {
        const std::int64_t itsEnd = key.start + numbersAt(key)->length;
        if (key.start < end)
            cutAt(end);
        end = std::max(end, itsEnd);
    }
    const std::vector<Key> idle = keysIn(free, all);
    bookGaps(free, booked, made);
    end = free.from;
    for (const Key& key : idle)
        if (key.start >= end) {
            end = key.start + numbersAt(key)->length;
            bookRow(key, booked, made);
        }
}

std::vector<HistoryFile::Key> HistoryFile::keysIn(const Amendment::Piece& piece,
                                                  const MeantStretches& meant) {
    std::vector<Key> keys;
    for (SqliteQuery row(m_database,
                         "SELECT start, n, program, title FROM stretches JOIN timers ON timers.id = timer "
                         "WHERE start >= ? AND start < ? AND NOT deleted ORDER BY start, n",
                         piece.from, piece.to);
         row.next();)
        if (meant.have(row.integer(2), row.integer(3)))
            keys.push_back({row.integer(0), row.integer(1)});
    return keys;
}

void HistoryFile::changeRow(const Key& key, const Amendment& amendment, std::int64_t made) {
    const Numbers before = *numbersAt(key);
    if (before.presence == std::int64_t(RowPresence::Idle))
        return;
    Numbers after = before;
    if (amendment.name)
        after.title = titleId(*amendment.name);
    if (amendment.project)
        after.timer = givenTimerId(before.timer, *amendment.project);
    if (after.title == before.title && after.timer == before.timer)
        return;
    remember(key, {before.program, before.title, before.timer, before.presence}, made);
    become(key, before, after);
}

std::int64_t HistoryFile::givenTimerId(std::int64_t timer, const RowProject& project) {
    RowTimer given;
    if (SqliteQuery row(m_database, "SELECT application, window FROM timers WHERE id = ?", timer); row.next())
        given = {Identity::fromBytes(row.bytes(0)), Identity::fromBytes(row.bytes(1))};
    given.project = project;
    return timerId(given);
}

void HistoryFile::bookRow(const Key& key, const HistoryRow& booked, std::int64_t made) {
    const Numbers before = *numbersAt(key);
    if (before.presence != std::int64_t(RowPresence::Idle))
        return;
    Numbers after = numbersOf(booked);
    after.length = before.length;
    after.day = before.day;
    remember(key, {before.program, before.title, before.timer, before.presence}, made);
    become(key, before, after);
}

void HistoryFile::bookGaps(const Amendment::Piece& piece, const HistoryRow& booked, std::int64_t made) {
    std::vector<Amendment::Piece> gaps;
    std::int64_t free = piece.from;
    for (SqliteQuery row(m_database,
                         "SELECT start, start + length FROM stretches JOIN timers ON timers.id = timer "
                         "WHERE start >= ? AND start < ? AND NOT deleted ORDER BY start, n",
                         piece.from - LocalHours::kHour, piece.to);
         row.next();) {
        if (row.integer(0) > free)
            gaps.push_back({free, row.integer(0)});
        free = std::max(free, row.integer(1));
    }
    if (free < piece.to)
        gaps.push_back({free, piece.to});
    for (auto [from, to] : gaps)
        while (from < to) {
            HistoryRow row = booked;
            row.start = from;
            row.offset = LocalHours::offsetAt(from);
            row.length = std::min(to, LocalHours::after(from, row.offset)) - from;
            remember(add(row), {0, 0, 0, kNothing}, made);
            from += row.length;
        }
}

void HistoryFile::become(const Key& key, const Numbers& before, const Numbers& after) {
    sqliteRun(
        m_database,
        "UPDATE stretches SET program = ?, title = ?, timer = ?, presence = ? WHERE start = ? AND n = ?",
        after.program, after.title, after.timer, after.presence, key.start, key.n);
    addToSums(after, after.length);
    addToSums(before, -before.length);
}

void HistoryFile::remember(const Key& key, const Before& before, std::int64_t made) {
    sqliteRun(m_database, "INSERT OR IGNORE INTO amended VALUES (?, ?, ?, ?, ?, ?, ?)", key.start, key.n,
              made, before.program, before.title, before.timer, before.presence);
}

void HistoryFile::addBefore(const Key& key, std::int64_t made, const std::optional<HistoryRow>& before) {
    if (!numbersAt(key))
        return;
    if (!before)
        return remember(key, {0, 0, 0, kNothing}, made);
    if (before->program.isEmpty())
        return remember(key, {0, 0, 0, std::int64_t(before->presence)}, made);
    const Numbers numbers = numbersOf(*before);
    remember(key, {numbers.program, numbers.title, numbers.timer, numbers.presence}, made);
}

void HistoryFile::apply(const HistoryChange::TakenBack& change) {
    std::vector<std::pair<Key, Before>> rows;
    for (SqliteQuery row(m_database,
                         "SELECT start, n, program, title, timer, presence FROM amended WHERE made = ?",
                         change.made);
         row.next();)
        rows.push_back({{row.integer(0), row.integer(1)},
                        {row.integer(2), row.integer(3), row.integer(4), row.integer(5)}});
    sqliteRun(m_database, "DELETE FROM amended WHERE made = ?", change.made);
    for (const auto& [key, before] : rows)
        if (!handOn(key, before, change.made))
            bringBack(key, before);
    // To look through years for who else has such a name takes long: the next launch does.
    sqliteRun(m_database, "INSERT OR REPLACE INTO settings VALUES ('to tidy', 1)");
}

// What was amended once more since then stays as it is now. Answers whether it was.
bool HistoryFile::handOn(const Key& key, const Before& before, std::int64_t made) {
    sqliteRun(m_database,
              "UPDATE amended SET program = ?, title = ?, timer = ?, presence = ? WHERE start = ? AND n = ? "
              "AND made = (SELECT min(made) FROM amended WHERE start = ? AND n = ? AND made > ?)",
              before.program, before.title, before.timer, before.presence, key.start, key.n, key.start, key.n,
              made);
    return m_database.changes() > 0;
}

void HistoryFile::bringBack(const Key& key, const Before& before) {
    const auto now = numbersAt(key);
    const bool isForgotten = before.program == 0 && before.presence != kNothing;
    if (!now || isForgotten)
        return;
    if (before.presence == kNothing)
        return change(key, *now, 0);
    become(key, *now, {now->length, now->day, before.program, before.title, before.timer, before.presence});
}
