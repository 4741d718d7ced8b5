// SPDX-License-Identifier: MIT
#include "Classes/history/Sqlite.h"

#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

namespace {

int flagsOf(SqliteDatabase::Mode mode) {
    switch (mode) {
    case SqliteDatabase::Mode::Read:
        return SQLITE_OPEN_READONLY;
    case SqliteDatabase::Mode::AtRest:
        return SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
    case SqliteDatabase::Mode::ReadWrite:
        return SQLITE_OPEN_READWRITE;
    case SqliteDatabase::Mode::Create:
        break;
    }
    return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
}

QByteArray nameOf(const QString& path, SqliteDatabase::Mode mode) {
    if (mode != SqliteDatabase::Mode::AtRest)
        return path.toUtf8();
    return "file://" + QUrl::toPercentEncoding(QFileInfo(path).absoluteFilePath(), "/") + "?immutable=1";
}

} // namespace

bool SqliteError::isDamage() const {
    return (m_code & 0xff) == SQLITE_CORRUPT || (m_code & 0xff) == SQLITE_NOTADB;
}

bool SqliteError::isBusy() const {
    return (m_code & 0xff) == SQLITE_BUSY || (m_code & 0xff) == SQLITE_LOCKED;
}

void SqliteDatabase::Closing::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

void SqliteDatabase::Finishing::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

SqliteDatabase::SqliteDatabase(const QString& path, Mode mode, int waitMs) {
    sqlite3* database = nullptr;
    // The file may be a link to anywhere: the user has put it there.
    const int code = sqlite3_open_v2(nameOf(path, mode).constData(), &database,
                                     flagsOf(mode) | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_database.reset(database);
    check(code);
    sqlite3_busy_timeout(database, waitMs);
    // Views and triggers in the file may have been written by anybody.
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
}

SqliteDatabase::~SqliteDatabase() = default;

void SqliteDatabase::check(int code) const {
    if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE)
        return;
    const char* text = m_database ? sqlite3_errmsg(m_database.get()) : sqlite3_errstr(code);
    throw SqliteError(code, QString::fromUtf8(text));
}

void SqliteDatabase::execute(const char* sql) {
    check(sqlite3_exec(m_database.get(), sql, nullptr, nullptr, nullptr));
}

std::int64_t SqliteDatabase::number(const char* sql) {
    SqliteQuery row(*this, sql);
    return row.next() ? row.integer(0) : 0;
}

std::int64_t SqliteDatabase::lastInsertId() const {
    return sqlite3_last_insert_rowid(m_database.get());
}

std::int64_t SqliteDatabase::changes() const {
    return sqlite3_changes(m_database.get());
}

bool SqliteDatabase::hasMoved() const {
    int moved = 0;
    return sqlite3_file_control(m_database.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK &&
           moved != 0;
}

void SqliteDatabase::closeWithoutCheckpoint() {
    sqlite3_db_config(m_database.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

sqlite3_stmt* SqliteDatabase::prepared(std::string_view sql) {
    auto& statement = m_statements[sql];
    if (!statement) {
        sqlite3_stmt* made = nullptr;
        check(sqlite3_prepare_v3(m_database.get(), sql.data(), int(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                 &made, nullptr));
        statement.reset(made);
    }
    return statement.get();
}

SqliteQuery::~SqliteQuery() {
    // If it failed, that was thrown when it happened.
    sqlite3_reset(m_statement);
    // Leaves no copy of a text in memory.
    sqlite3_clear_bindings(m_statement);
}

bool SqliteQuery::next() {
    const int code = sqlite3_step(m_statement);
    m_database.check(code);
    return code == SQLITE_ROW;
}

std::int64_t SqliteQuery::integer(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

QString SqliteQuery::text(int column) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    return QString::fromUtf8(bytes, sqlite3_column_bytes(m_statement, column));
}

QByteArray SqliteQuery::bytes(int column) const {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
    return QByteArray(bytes, sqlite3_column_bytes(m_statement, column));
}

void SqliteQuery::bind(int position, std::int64_t value) {
    m_database.check(sqlite3_bind_int64(m_statement, position, value));
}

void SqliteQuery::bind(int position, const QString& value) {
    const QByteArray bytes = value.toUtf8();
    m_database.check(sqlite3_bind_text(m_statement, position, bytes.constData() ? bytes.constData() : "",
                                       int(bytes.size()), SQLITE_TRANSIENT));
}

// An empty value is stored as empty, not as NULL.
void SqliteQuery::bind(int position, const QByteArray& value) {
    m_database.check(
        sqlite3_bind_blob(m_statement, position, value.constData(), int(value.size()), SQLITE_TRANSIENT));
}

SqliteTransaction::SqliteTransaction(SqliteDatabase& database)
    : m_database(database) {
    // "IMMEDIATE" takes the right to write at once. A reader that starts to write later is refused if another
    // program has written meanwhile.
    database.execute("BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction() {
    if (!m_isOpen)
        return;
    try {
        m_database.execute("ROLLBACK");
    } catch (const SqliteError&) {
        // With a full disk, SQLite has rolled it back already.
    }
}

void SqliteTransaction::commit() {
    m_database.execute("COMMIT");
    m_isOpen = false;
}
