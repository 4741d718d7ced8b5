// SPDX-License-Identifier: MIT
// Forgetting and deleting, so that no trace is left in the file.
#include "Classes/history/HistoryFile.h"
#include "Classes/history/HistoryFinding.h"
#include "Classes/history/LocalHours.h"

namespace {

using LocalHours::kHour;

constexpr std::int64_t kDay = 24 * kHour;
// A date that lies further ahead of the last known one is doubted...
constexpr std::int64_t kMostAhead = 7 * kDay;
// ...until it still holds so much later.
constexpr std::int64_t kUntilBelieved = 18 * kHour;
constexpr std::int64_t kLongestDoubt = 14 * kDay;

// The conditions, in the order of the question marks. One that is not asked for matches everything.
constexpr const char* kDeleteStretches = "DELETE FROM stretches WHERE start >= ? AND start < ? "
                                         "AND (? = 0 OR program = ?) "
                                         "AND (? = 0 OR title IN (SELECT id FROM chosen))";

constexpr const char* kForgetBefore =
    "UPDATE amended SET program = 0, title = 0, timer = 0 WHERE start >= ? AND start < ? "
    "AND (? = 0 OR program = ?) AND (? = 0 OR title IN (SELECT id FROM chosen))";
constexpr const char* kDropOrphans = "DELETE FROM amended WHERE NOT EXISTS (SELECT 1 FROM stretches "
                                     "WHERE stretches.start = amended.start AND stretches.n = amended.n)";

} // namespace

void HistoryFile::apply(const HistoryChange::Forgotten& change) {
    forget(change);
    // Time that was owed to the store is a trace as well.
    if (change.program && !change.title)
        sqliteRun(m_database, "DELETE FROM owed WHERE program = ?", *change.program);
    else
        sqliteRun(m_database, "DELETE FROM owed");
}

void HistoryFile::forget(const HistoryChange::Forgotten& what) {
    if (what.from)
        cutAt(*what.from);
    if (what.to)
        cutAt(*what.to);
    // A try that failed may have left something there.
    if (what.removed)
        *what.removed = {};
    if (what.times.isEmpty())
        forgetRows(what);
    else
        forgetTimes(what.times, what.removed.get());
    dropUnused();
    m_hasToEmpty = true;
}

// Divides every row that crosses `time`.
void HistoryFile::cutAt(std::int64_t time) {
    struct Cut {
        Key key;
        std::int64_t length;
    };
    std::vector<Cut> cuts;
    for (SqliteQuery row(
             m_database,
             "SELECT start, n, length FROM stretches WHERE start > ? AND start < ? AND start + length > ?",
             time - kHour, time, time);
         row.next();)
        cuts.push_back({{row.integer(0), row.integer(1)}, row.integer(2)});
    for (const auto& [key, length] : cuts) {
        const std::int64_t before = time - key.start;
        sqliteRun(m_database,
                  "INSERT INTO stretches SELECT ?, (SELECT ifnull(max(n) + 1, 0) FROM stretches WHERE start "
                  "= ?), ?, "
                  "offset, program, title, timer, presence FROM stretches WHERE start = ? AND n = ?",
                  time, time, length - before, key.start, key.n);
        sqliteRun(
            m_database,
            "INSERT INTO amended SELECT ?, (SELECT max(n) FROM stretches WHERE start = ?), made, program, "
            "title, timer, presence FROM amended WHERE start = ? AND n = ?",
            time, time, key.start, key.n);
        sqliteRun(m_database, "UPDATE stretches SET length = ? WHERE start = ? AND n = ?", before, key.start,
                  key.n);
    }
}

void HistoryFile::forgetRows(const HistoryChange::Forgotten& what) {
    const auto [program, isByTitle, from, to] = HistoryChoice::of(m_database, what);
    SqliteQuery bounds(m_database,
                       "SELECT min(start), max(start), min(offset), max(offset) FROM stretches "
                       "WHERE start >= ? AND start < ?",
                       from, to);
    bounds.next();
    const std::int64_t first = dayOf(bounds.integer(0), bounds.integer(2));
    const std::int64_t last = dayOf(bounds.integer(1), bounds.integer(3));
    sqliteRun(m_database, kDeleteStretches, from, to, program, program, isByTitle);
    if (m_database.changes() > 0)
        sumDaysAgain(first, last);
    // That it was amended stays known, but nobody can bring it back.
    sqliteRun(m_database, kForgetBefore, from, to, program, program, isByTitle);
}

// Of deleted timers as well: what is forgotten does not come back with them.
void HistoryFile::forgetTimes(const ChosenTimes& times, RemovedRows* removed) {
    const MeantStretches meant(m_database, times.only);
    for (const auto& [from, to] : times.pieces) {
        cutAt(from);
        cutAt(to);
        std::vector<Key> keys;
        for (SqliteQuery row(m_database,
                             "SELECT start, n, program, title FROM stretches WHERE start >= ? AND start < ?",
                             from, to);
             row.next();)
            if (meant.have(row.integer(2), row.integer(3)))
                keys.push_back({row.integer(0), row.integer(1)});
        for (const Key& key : keys) {
            if (removed)
                keep(key, *removed);
            change(key, *numbersAt(key), 0);
        }
    }
}

void HistoryFile::sumDaysAgain(std::int64_t first, std::int64_t last) {
    sqliteRun(m_database, "DELETE FROM days WHERE day BETWEEN ? AND ?", first, last);
    const auto startOf = [](std::int64_t day) {
        const QDate date(int(day / 10'000), int(day / 100 % 100), int(day % 100));
        return (date.toJulianDay() - QDate(1970, 1, 1).toJulianDay()) * 24 * kHour;
    };
    // The days of local time differ from those of UTC by less than two days.
    sqliteRun(
        m_database,
        "INSERT INTO days SELECT CAST(strftime('%Y%m%d', (start + offset * 60000 - ? * 3600000) / 1000, "
        "'unixepoch') AS INTEGER) AS day, program, title, timer, presence, sum(length) FROM stretches "
        "WHERE start >= ? AND start < ? GROUP BY 1, 2, 3, 4, 5 HAVING day BETWEEN ? AND ?",
        m_dayBegin, startOf(first) - 48 * kHour, startOf(last) + 72 * kHour, first, last);
    sumMonthsAgain();
}

void HistoryFile::sumMonthsAgain() {
    sqliteRun(m_database, "DELETE FROM months");
    sqliteRun(m_database,
              "INSERT INTO months SELECT day / 100, program, timer, presence, sum(length) FROM days "
              "GROUP BY 1, 2, 3, 4");
}

void HistoryFile::dropUnused() {
    m_isToTellTimers = true;
    sqliteRun(m_database, "DELETE FROM settings WHERE name = 'to tidy'");
    sqliteRun(m_database, kDropOrphans);
    sqliteRun(m_database, "DELETE FROM titles WHERE id <> 0 AND id NOT IN (SELECT title FROM days) "
                          "AND id NOT IN (SELECT title FROM amended)");
    sqliteRun(m_database, "DELETE FROM programs WHERE id NOT IN (SELECT program FROM days) "
                          "AND id NOT IN (SELECT program FROM amended)");
    sqliteRun(m_database, "DELETE FROM timers WHERE id <> 0 AND id NOT IN (SELECT timer FROM days) "
                          "AND id NOT IN (SELECT timer FROM amended)");
    sqliteRun(m_database, "DELETE FROM projects WHERE identity NOT IN (SELECT project FROM timers)");
}

// What is deleted does not come back when a clock that was wrong is set right.
std::int64_t HistoryFile::believed(std::int64_t now) {
    const auto number = [&](const char* sql) {
        SqliteQuery value(m_database, sql);
        return value.next() ? std::optional(value.integer(0)) : std::nullopt;
    };
    auto known = number("SELECT value FROM settings WHERE name = 'date known'");
    if (!known)
        known = number("SELECT start + length FROM stretches ORDER BY start DESC LIMIT 1");
    const auto doubted = number("SELECT value FROM settings WHERE name = 'date doubted'");
    const std::int64_t since = doubted ? now - *doubted : 0;
    const bool isBelieved =
        now - known.value_or(now) <= kMostAhead || (since >= kUntilBelieved && since <= kLongestDoubt);
    const std::int64_t date = isBelieved ? std::max(known.value_or(now), now) : *known;
    sqliteRun(m_database, "INSERT OR REPLACE INTO settings VALUES ('date known', ?)", date);
    if (isBelieved)
        sqliteRun(m_database, "DELETE FROM settings WHERE name = 'date doubted'");
    else if (!doubted || since < 0 || since > kLongestDoubt)
        sqliteRun(m_database, "INSERT OR REPLACE INTO settings VALUES ('date doubted', ?)", now);
    return std::min(date, now);
}

void HistoryFile::sweep(const std::optional<HistoryAge>& age, bool isDeletedToGo) {
    SqliteTransaction transaction(m_database);
    const bool hasDeleted =
        isDeletedToGo && m_database.number("SELECT count(*) FROM timers WHERE deleted") > 0;
    if (hasDeleted) {
        sqliteRun(m_database, "DELETE FROM stretches WHERE timer IN (SELECT id FROM timers WHERE deleted)");
        sqliteRun(m_database, "DELETE FROM days WHERE timer IN (SELECT id FROM timers WHERE deleted)");
        sqliteRun(m_database, "DELETE FROM months WHERE timer IN (SELECT id FROM timers WHERE deleted)");
    }
    const bool isToTidy =
        isDeletedToGo && m_database.number("SELECT count(*) FROM settings WHERE name = 'to tidy'") > 0;
    if (hasDeleted || isToTidy) {
        dropUnused();
        m_hasToEmpty = true;
    }
    if (age)
        forgetOlder(*age);
    transaction.commit();
    empty();
}

void HistoryFile::forgetOlder(const HistoryAge& age) {
    const std::int64_t before = believed(age.now) - age.kept;
    SqliteQuery first(m_database, "SELECT min(start) FROM stretches WHERE start < ?", before);
    if (first.next() && first.integer(0) != 0)
        // What is owed is not old: no save of the store goes with this.
        forget(HistoryChange::Forgotten{.program = {}, .title = {}, .from = {}, .to = before});
}

void HistoryFile::setDayBegin(int hour) {
    if (m_dayBegin == hour)
        return;
    SqliteTransaction transaction(m_database);
    sqliteRun(m_database, "UPDATE settings SET value = ? WHERE name = 'day begins at'", std::int64_t(hour));
    m_dayBegin = hour;
    sumDaysAgain(0, historyDay(QDate(9999, 1, 1)));
    transaction.commit();
}

void HistoryFile::empty() {
    if (!m_hasToEmpty)
        return;
    SqliteQuery checkpoint(m_database, "PRAGMA wal_checkpoint(TRUNCATE)");
    m_hasToEmpty = checkpoint.next() && checkpoint.integer(0) != 0;
}
