// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <exception>
#include <memory>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

// An error that SQLite has reported. Thrown within this room, and caught by whoever is responsible for the
// file.
class SqliteError : public std::exception {
public:
    SqliteError(int code, QString text)
        : m_code(code)
        , m_text(std::move(text)) {}

    // The content is no database, or one that is damaged.
    bool isDamage() const;
    // Another program uses it at this moment.
    bool isBusy() const;
    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return "SqliteError"; }

private:
    int m_code;
    QString m_text;
};

// An open database. One thread at a time.
class SqliteDatabase {
public:
    // AtRest reads a file that nobody has open: without a lock, leaving nothing beside it, also where nothing
    // can be written.
    enum class Mode { Read, AtRest, ReadWrite, Create };

    // `waitMs`: how long to wait while another program writes.
    SqliteDatabase(const QString& path, Mode mode, int waitMs);
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;
    ~SqliteDatabase();

    // Runs one statement or several that give no rows.
    void execute(const char* sql);
    // The first value of the first row; 0 without a row.
    std::int64_t number(const char* sql);
    std::int64_t lastInsertId() const;
    // How many rows the last statement has changed.
    std::int64_t changes() const;
    // Whether the file has been moved or removed since it was opened.
    bool hasMoved() const;
    // On closing, leaves SQLite's journal as it is: whoever opens the file next continues it.
    void closeWithoutCheckpoint();

private:
    friend class SqliteQuery;
    struct Closing {
        void operator()(sqlite3* database) const;
    };
    struct Finishing {
        void operator()(sqlite3_stmt* statement) const;
    };

    sqlite3_stmt* prepared(std::string_view sql);
    void check(int code) const;

    std::unique_ptr<sqlite3, Closing> m_database;
    // By their text, always a literal: each statement is compiled once.
    std::unordered_map<std::string_view, std::unique_ptr<sqlite3_stmt, Finishing>> m_statements;
};

// One use of a statement, with its values in the order of its question marks:
//
//   for (SqliteQuery row(database, "SELECT length FROM stretches WHERE start = ?", start); row.next();)
//       total += row.integer(0);
class SqliteQuery {
public:
    // `sql` must be a literal, and only one query may use it at a time.
    template<class... Values>
    SqliteQuery(SqliteDatabase& database, const char* sql, const Values&... values)
        : m_database(database)
        , m_statement(database.prepared(sql)) {
        int position = 0;
        (bind(++position, values), ...);
    }
    SqliteQuery(const SqliteQuery&) = delete;
    SqliteQuery& operator=(const SqliteQuery&) = delete;
    ~SqliteQuery();

    // False when there are no more rows.
    bool next();
    std::int64_t integer(int column) const;
    QString text(int column) const;
    QByteArray bytes(int column) const;

private:
    void bind(int position, std::int64_t value);
    void bind(int position, const QString& value);
    void bind(int position, const QByteArray& value);

    SqliteDatabase& m_database;
    sqlite3_stmt* m_statement;
};

// A statement that answers nothing.
template<class... Values>
void sqliteRun(SqliteDatabase& database, const char* sql, const Values&... values) {
    SqliteQuery(database, sql, values...).next();
}

// All statements until commit() take effect, or none.
class SqliteTransaction {
public:
    explicit SqliteTransaction(SqliteDatabase& database);
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;
    ~SqliteTransaction();

    void commit();

private:
    SqliteDatabase& m_database;
    bool m_isOpen = true;
};
