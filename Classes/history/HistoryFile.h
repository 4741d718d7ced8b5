// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/RemovedRows.h"
#include "Classes/history/Sqlite.h"

#include <unordered_set>

class MeantStretches;
class TitleRules;

// The history on the disk, open for writing. Makes the file if there is none, for the user alone, and brings
// an older form up to date. Throws SqliteError; after that it must be closed, and the file holds what the
// last complete call has left. Any thread, one at a time; waits for the disk.
class HistoryFile {
public:
    // Thrown when a newer program has written the file: it is left untouched.
    struct Newer {};
    struct Key {
        std::int64_t start;
        std::int64_t n;
    };
    // Where rows lie, by serial number: those that may be written again, and those of the last try, which may
    // be in the file although it failed: a disk may refuse a write and have it all the same.
    struct Written {
        std::map<std::uint64_t, Key> rows;
        std::map<std::uint64_t, Key> tried;
    };

    // `waitMs`: how long to wait for other programs that write to the file.
    explicit HistoryFile(const QString& path, int waitMs = 2000);

    // Writes the whole batch or nothing, and keeps the sums up to date. A batch that is tried again is
    // written only once.
    void write(const HistoryBatch& batch, Written& written);
    // Deletes what is older than it is kept, once the clock is believed. With `isDeletedToGo`, deletes the
    // rows of deleted timers as well.
    void sweep(const std::optional<HistoryAge>& age, bool isDeletedToGo);
    // Sets the hour at which a day begins, 0 to 23, for future rows and for those in the file.
    void setDayBegin(int hour);
    // Moves SQLite's journal into the file and overwrites it, if it may still hold what was forgotten. While
    // another program reads, it stays to be done, and the next write tries again.
    void empty();
    bool hasToEmpty() const { return m_hasToEmpty; }

    SqliteDatabase& database() { return m_database; }
    // Whether it knows what any store lacks.
    bool knowsStore() { return m_database.number("SELECT count(*) FROM stores") > 0; }
    // The number of the last amendment; 0 without one.
    std::int64_t lastAmended() { return m_database.number("SELECT ifnull(max(made), 0) FROM amended"); }
    // The identities of all timers in it: once when it was opened, and whenever some may have left it.
    std::optional<std::unordered_set<Identity>> takeTimers();
    bool hasMoved() const { return m_database.hasMoved(); }
    // Adds one row, within a transaction of the caller's.
    Key add(const HistoryRow& row);
    // Adds what that row was before it was amended, within a transaction of the caller's: absent where nothing was
    // measured, and without a program where that was forgotten. Does nothing if there is no such row.
    void addBefore(const Key& key, std::int64_t made, const std::optional<HistoryRow>& before);
    // In place of a presence, where nothing was measured.
    static constexpr std::int64_t kNothing = -1;

private:
    // What a row was before it was amended. Program 0 was forgotten.
    using Before = RemovedRows::What;
    // A row with numbers in place of its texts.
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
    Key insert(std::int64_t start, std::int64_t offset, const Numbers& numbers);
    void addToSums(const Numbers& row, std::int64_t length);
    std::int64_t programId(const QString& name);
    std::int64_t titleId(const QString& text);
    std::int64_t timerId(const RowTimer& timer, std::int64_t deleted = 0);
    std::int64_t givenTimerId(std::int64_t timer, const RowProject& project);
    std::int64_t dayOf(std::int64_t start, std::int64_t offset) const;

    void apply(const HistoryChange::Moved& change);
    void apply(const HistoryChange::Deleted& change);
    void apply(const HistoryChange::Forgotten& change);
    void apply(const HistoryChange::PutBack& change);
    void apply(const HistoryChange::Ruled& change);
    void apply(const HistoryChange::Amended& change);
    void apply(const HistoryChange::TakenBack& change);
    void apply(const HistoryChange::StoreWhole& change);
    void apply(const HistoryChange::StorePlaced& change);
    void apply(const HistoryChange::StoreUnknown& change);
    void owe(const OwedTime& to, std::int64_t length);

    void forget(const HistoryChange::Forgotten& what);
    void forgetTimes(const ChosenTimes& times, RemovedRows* removed);
    void forgetOlder(const HistoryAge& age);
    void keep(const Key& key, RemovedRows& removed);
    void keepNames(const Before& what, RemovedRows& removed);
    Before numbersNow(const Before& then, const RemovedRows& removed, const TitleRules& rules);
    void cutAt(std::int64_t time);
    std::vector<Key> keysIn(const Amendment::Piece& piece, const MeantStretches& meant);
    void changeRow(const Key& key, const Amendment& amendment, std::int64_t made);
    std::vector<Amendment::Piece> freeIn(const Amendment::Piece& piece);
    void book(const Amendment::Piece& free, const HistoryRow& booked, std::int64_t made);
    void bookRow(const Key& key, const HistoryRow& booked, std::int64_t made);
    void bookGaps(const Amendment::Piece& piece, const HistoryRow& booked, std::int64_t made);
    void become(const Key& key, const Numbers& before, const Numbers& after);
    void remember(const Key& key, const Before& before, std::int64_t made);
    bool handOn(const Key& key, const Before& before, std::int64_t made);
    void bringBack(const Key& key, const Before& before);
    void rulePairs(const TitleRules& rules);
    void moveTimers(const std::optional<Identity>& hidden);
    void forgetRows(const HistoryChange::Forgotten& what);
    void sumDaysAgain(std::int64_t first, std::int64_t last);
    void sumMonthsAgain();
    void dropUnused();
    std::int64_t believed(std::int64_t now);

    SqliteDatabase m_database;
    std::int64_t m_dayBegin = 0;
    // True at first: while another program read, the journal could not be emptied, and it may still hold what
    // was forgotten then.
    bool m_hasToEmpty = true;
    bool m_isToTellTimers = true;
};

// The number by which the file knows a day: 20261120.
std::int64_t historyDay(QDate day);
// By which the file knows what project a row was given to: the identity, one zero for none, nothing if it was
// not given.
QByteArray historyBytes(const std::optional<RowProject>& project);
std::optional<RowProject> historyProject(const QByteArray& bytes);
