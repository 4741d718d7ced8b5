// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"
#include "Classes/history/Sqlite.h"

class TitleRules;

// The history on the disk, open for writing. Makes the file, for the user alone, if there is none, and brings it up to
// today's form. Throws SqliteError; after that it is to be closed, and holds what the last whole call has left. Any thread,
// one at a time; it waits for the disk.
class HistoryFile {
public:
    // Thrown where a newer program has written: its file is not to be touched.
    struct Newer {};
    struct Key {
        std::int64_t start;
        std::int64_t n;
    };
    // Where rows lie that may be written again, and those of the last try, of which nobody knows whether it failed: a disk
    // may refuse what it finds it has, later.
    struct Written {
        std::map<std::uint64_t, Key> rows;
        std::map<std::uint64_t, Key> tried;
    };

    // `waitMs`: how long other programs that write are waited for.
    explicit HistoryFile(const QString& path, int waitMs = 2000);

    // All of it or nothing, with the sums. Once, however often it is tried.
    void write(const HistoryBatch& batch, Written& written);
    // Takes out what is older than `before` (milliseconds since 1970), and what is deleted if that is not to come back.
    void sweep(std::optional<std::int64_t> before, bool isDeletedToGo);
    // Days begin at this hour of the clock, from 0 to 23, from now on and in the past.
    void setDayBegin(int hour);

    SqliteDatabase& database() { return m_database; }
    bool hasMoved() const { return m_database.hasMoved(); }
    // A row by itself, as part of a transaction of the caller's.
    Key add(const HistoryRow& row);

private:
    // A row by the numbers of its texts.
    struct Numbers {
        std::int64_t length;
        std::int64_t day;
        std::int64_t program;
        std::int64_t title;
        std::int64_t timer;
        std::int64_t presence;
    };

    bool hasWritten(std::int64_t batch);
    void put(const HistoryBatch& batch, Written& written);
    void change(const Key& key, const Numbers& before, std::int64_t length);
    std::optional<Numbers> numbersAt(const Key& key);
    Numbers numbersOf(const HistoryRow& row);
    Key insert(const HistoryRow& row, const Numbers& numbers);
    void addToSums(const Numbers& row, std::int64_t length);
    std::int64_t programId(const QString& name);
    std::int64_t titleId(const QString& text);
    std::int64_t timerId(const RowTimer& timer);
    std::int64_t dayOf(std::int64_t start, std::int64_t offset) const;

    void apply(const HistoryChange::Renamed& change);
    void apply(const HistoryChange::Deleted& change);
    void apply(const HistoryChange::Forgotten& change);
    void apply(const HistoryChange::Ruled& change);
    void apply(const HistoryChange::StoreWhole& change);
    void apply(const HistoryChange::StorePlaced& change);
    void apply(const HistoryChange::StoreUnknown& change);
    void owe(const OwedTime& to, std::int64_t length);

    void cutAt(std::int64_t time);
    void rulePairs(const TitleRules& rules);
    void moveTimers(const std::optional<Identity>& hidden);
    void forgetRows(const HistoryChange::Forgotten& what);
    void sumDaysAgain(std::int64_t first, std::int64_t last);
    void sumMonthsAgain();
    void dropUnused();
    void empty();

    SqliteDatabase m_database;
    std::int64_t m_dayBegin = 0;
    // The journal may hold what was forgotten.
    bool m_hasToEmpty = false;
};

// Finds a number that days are known by in the file: 20261120.
std::int64_t historyDay(QDate day);
