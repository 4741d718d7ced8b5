// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryFile.h"

#include "Classes/history/HistorySchema.h"

#include <QFile>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::int64_t kMinute = 60'000;
// Added to the generations of a store that is away: they are below zero, and in the same order.
constexpr std::int64_t kAway = -(std::int64_t(1) << 60);
constexpr std::int64_t kHour = 60 * kMinute;
constexpr std::int64_t kDay = 24 * kHour;

// The file must be private before SQLite opens it: its journal gets the same permissions.
const QString& madePrivate(const QString& path) {
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0)
        ::close(file);
    return path;
}

QByteArray bytesOf(const std::optional<Identity>& identity) {
    return identity ? identity->bytes() : QByteArray("");
}

} // namespace

std::int64_t historyDay(QDate day) {
    return std::int64_t(day.year()) * 10'000 + day.month() * 100 + day.day();
}

HistoryFile::HistoryFile(const QString& path, int waitMs)
    : m_database(madePrivate(path), SqliteDatabase::Mode::ReadWrite, waitMs) {
    switch (HistorySchema::formOf(m_database)) {
    case HistorySchema::Form::Ours:
        break;
    case HistorySchema::Form::Newer:
        throw Newer();
    case HistorySchema::Form::Foreign:
        throw SqliteError(SQLITE_NOTADB, QStringLiteral("no history"));
    }
    HistorySchema::bringUp(m_database);
    // Each commit is on the disk when it returns. Deleted content is overwritten.
    m_database.execute(
        "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA secure_delete = ON;"
        "PRAGMA temp_store = MEMORY; PRAGMA journal_size_limit = 1048576; PRAGMA cache_size = -512");
    m_dayBegin = m_database.number("SELECT value FROM settings WHERE name = 'day begins at'");
}

void HistoryFile::write(const HistoryBatch& batch, Written& written) {
    if (batch.number == 0 || !hasWritten(batch.number)) {
        SqliteTransaction transaction(m_database);
        put(batch, written);
        transaction.commit();
    }
    for (const auto& [serial, key] : std::exchange(written.tried, {}))
        written.rows.insert_or_assign(serial, key);
    written.rows.erase(written.rows.begin(), written.rows.lower_bound(batch.settledBefore));
    empty();
}

bool HistoryFile::hasWritten(std::int64_t batch) {
    SqliteQuery last(m_database, "SELECT value FROM settings WHERE name = 'written last'");
    return last.next() && last.integer(0) == batch;
}

void HistoryFile::put(const HistoryBatch& batch, Written& written) {
    written.tried.clear();
    for (const auto& change : batch.changes)
        std::visit([this](const auto& what) { apply(what); }, change);
    for (const auto& [serial, row] : batch.rows) {
        const auto known = written.rows.find(serial);
        if (const auto before = known == written.rows.end() ? std::nullopt : numbersAt(known->second))
            change(known->second, *before, row.length);
        else if (row.length > 0)
            written.tried.emplace(serial, add(row));
    }
    for (const auto& [to, length] : batch.owed)
        owe(to, length);
    if (batch.number != 0)
        sqliteRun(m_database, "INSERT OR REPLACE INTO settings VALUES ('written last', ?)", batch.number);
}

// Changes the length of a row that is already written, or deletes it. Its other values stay as they are in
// the file.
void HistoryFile::change(const Key& key, const Numbers& before, std::int64_t length) {
    if (length > 0)
        sqliteRun(m_database, "UPDATE stretches SET length = ? WHERE start = ? AND n = ?", length, key.start,
                  key.n);
    else
        sqliteRun(m_database, "DELETE FROM stretches WHERE start = ? AND n = ?", key.start, key.n);
    addToSums(before, length - before.length);
}

HistoryFile::Key HistoryFile::add(const HistoryRow& row) {
    const Numbers numbers = numbersOf(row);
    addToSums(numbers, row.length);
    return insert(row.start, row.offset, numbers);
}

std::optional<HistoryFile::Numbers> HistoryFile::numbersAt(const Key& key) {
    SqliteQuery row(m_database,
                    "SELECT length, offset, program, title, timer, presence FROM stretches "
                    "WHERE start = ? AND n = ?",
                    key.start, key.n);
    if (!row.next())
        return std::nullopt;
    return Numbers{row.integer(0), dayOf(key.start, row.integer(1)),
                   row.integer(2), row.integer(3),
                   row.integer(4), row.integer(5)};
}

HistoryFile::Numbers HistoryFile::numbersOf(const HistoryRow& row) {
    return {row.length,         dayOf(row.start, row.offset), programId(row.program),
            titleId(row.title), timerId(row.timer),           std::int64_t(row.presence)};
}

HistoryFile::Key HistoryFile::insert(std::int64_t start, std::int64_t offset, const Numbers& numbers) {
    // After the clock was set back, the same time comes again.
    SqliteQuery last(m_database, "SELECT max(n) + 1 FROM stretches WHERE start = ?", start);
    const Key key{start, last.next() ? last.integer(0) : 0};
    sqliteRun(m_database, "INSERT INTO stretches VALUES (?, ?, ?, ?, ?, ?, ?, ?)", key.start, key.n,
              numbers.length, offset, numbers.program, numbers.title, numbers.timer, numbers.presence);
    return key;
}

void HistoryFile::addToSums(const Numbers& row, std::int64_t length) {
    sqliteRun(m_database,
              "INSERT INTO days VALUES (?, ?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET length = length + "
              "excluded.length",
              row.day, row.program, row.title, row.timer, row.presence, length);
    sqliteRun(m_database,
              "INSERT INTO months VALUES (?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET length = length + "
              "excluded.length",
              row.day / 100, row.program, row.timer, row.presence, length);
    if (length > 0)
        return;
    sqliteRun(m_database,
              "DELETE FROM days WHERE day = ? AND program = ? AND title = ? AND timer = ? AND presence = ? "
              "AND length = 0",
              row.day, row.program, row.title, row.timer, row.presence);
    sqliteRun(
        m_database,
        "DELETE FROM months WHERE month = ? AND program = ? AND timer = ? AND presence = ? AND length = 0",
        row.day / 100, row.program, row.timer, row.presence);
}

std::int64_t HistoryFile::programId(const QString& name) {
    if (SqliteQuery known(m_database, "SELECT id FROM programs WHERE name = ?", name); known.next())
        return known.integer(0);
    sqliteRun(m_database, "INSERT INTO programs (name) VALUES (?)", name);
    return m_database.lastInsertId();
}

std::int64_t HistoryFile::titleId(const QString& text) {
    if (text.isEmpty())
        return 0;
    if (SqliteQuery known(m_database, "SELECT id FROM titles WHERE text = ?", text); known.next())
        return known.integer(0);
    sqliteRun(m_database, "INSERT INTO titles (text) VALUES (?)", text);
    return m_database.lastInsertId();
}

std::int64_t HistoryFile::timerId(const RowTimer& timer, std::int64_t deleted) {
    const QByteArray application = bytesOf(timer.application);
    const QByteArray window = bytesOf(timer.window);
    const QByteArray project = historyBytes(timer.project);
    // A name that was deleted and comes back has the same identity as before, but not its past.
    if (SqliteQuery known(
            m_database,
            "SELECT id FROM timers WHERE application = ? AND window = ? AND project = ? AND deleted = ?",
            application, window, project, deleted);
        known.next())
        return known.integer(0);
    sqliteRun(m_database, "INSERT INTO timers (application, window, project, deleted) VALUES (?, ?, ?, ?)",
              application, window, project, deleted);
    return m_database.lastInsertId();
}

std::int64_t HistoryFile::dayOf(std::int64_t start, std::int64_t offset) const {
    const std::int64_t local = start + offset * kMinute - m_dayBegin * kHour;
    const std::int64_t day = local >= 0 ? local / kDay : -((kDay - 1 - local) / kDay);
    return historyDay(QDate(1970, 1, 1).addDays(day));
}

void HistoryFile::apply(const HistoryChange::Moved& change) {
    const auto& [from, to] = change.move;
    m_isToTellTimers = true;
    if (from.window && to.window)
        sqliteRun(m_database,
                  "UPDATE timers SET application = ?, window = ? WHERE application = ? AND window = ? AND "
                  "NOT deleted",
                  to.application.bytes(), to.window->bytes(), from.application.bytes(), from.window->bytes());
    else
        sqliteRun(m_database, "UPDATE timers SET application = ? WHERE application = ? AND NOT deleted",
                  to.application.bytes(), from.application.bytes());
}

// Deleting an application deletes its windows. When it comes back, so do they, except those that were deleted
// before it.
void HistoryFile::apply(const HistoryChange::Deleted& change) {
    for (const auto& [application, window] : change.timers) {
        const std::int64_t deleted = window ? 1 : 2;
        const std::int64_t from = change.isDeleted ? 0 : deleted;
        const std::int64_t to = change.isDeleted ? deleted : 0;
        if (window)
            sqliteRun(m_database,
                      "UPDATE timers SET deleted = ? WHERE deleted = ? AND application = ? AND window = ?",
                      to, from, application.bytes(), window->bytes());
        else
            sqliteRun(m_database, "UPDATE timers SET deleted = ? WHERE deleted = ? AND application = ?", to,
                      from, application.bytes());
    }
}

void HistoryFile::apply(const HistoryChange::StoreWhole& change) {
    sqliteRun(m_database, "INSERT OR REPLACE INTO stores VALUES (?, ?)", change.content, change.generation);
}

void HistoryFile::apply(const HistoryChange::StorePlaced& change) {
    const std::int64_t first = change.isAnotherAway ? 0 : kAway;
    sqliteRun(m_database, "DELETE FROM stores WHERE content <> ? AND since >= ?", change.content, first);
    sqliteRun(m_database, "INSERT OR REPLACE INTO stores VALUES (?, ?)", change.content, change.generation);
    sqliteRun(m_database, "DELETE FROM owed WHERE generation >= ? AND generation < ?", first,
              change.generation);
}

void HistoryFile::apply(const HistoryChange::StoreUnknown& change) {
    if (change.isAnotherAway && m_database.number("SELECT count(*) FROM stores WHERE since < 0") == 0) {
        sqliteRun(m_database, "UPDATE stores SET since = since + ?", kAway);
        sqliteRun(m_database, "UPDATE owed SET generation = generation + ?", kAway);
    }
    const std::int64_t first = change.isAnotherAway ? 0 : kAway;
    sqliteRun(m_database, "DELETE FROM stores WHERE since >= ?", first);
    sqliteRun(m_database, "DELETE FROM owed WHERE generation >= ?", first);
    sqliteRun(m_database, "INSERT OR REPLACE INTO stores VALUES (?, 0)", change.content);
}

std::optional<std::unordered_set<Identity>> HistoryFile::takeTimers() {
    if (!std::exchange(m_isToTellTimers, false))
        return std::nullopt;
    std::unordered_set<Identity> timers;
    for (SqliteQuery row(m_database, "SELECT application, window FROM timers"); row.next();)
        for (const int column : {0, 1})
            if (const auto identity = Identity::fromBytes(row.bytes(column)))
                timers.insert(*identity);
    return timers;
}

void HistoryFile::owe(const OwedTime& to, std::int64_t length) {
    sqliteRun(m_database,
              "INSERT INTO owed VALUES (?, ?, ?, ?, ?, ?) ON CONFLICT DO UPDATE SET length = length + "
              "excluded.length",
              to.generation, bytesOf(to.timer.application), to.program, bytesOf(to.timer.window),
              to.window.value_or(QString()), length);
}
