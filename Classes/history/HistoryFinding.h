// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"

#include <QStringList>

#include <set>

class SqliteDatabase;

// How much time a program and a title have together.
struct HistorySum {
    QString program;
    QString title;
    // Milliseconds.
    std::int64_t length = 0;
};

// What the conditions match, shown before it is forgotten. What is only known as what it was before it was changed by
// hand is among it.
struct HistoryFinding {
    // At most this many are listed; the rest are only counted.
    static constexpr int kMostListed = 500;

    static HistoryFinding of(SqliteDatabase& history, const HistoryChange::Forgotten& what);

    // Milliseconds.
    std::int64_t length = 0;
    // How many pairs of program and title there are.
    std::int64_t sums = 0;
    // The pairs with the most time, in descending order.
    std::vector<HistorySum> longest;
};

// How many stretches begin in one of the pieces, whosever they are.
std::int64_t stretchesIn(SqliteDatabase& history, const std::vector<Amendment::Piece>& pieces);

// The names of all programs, sorted.
QStringList programsIn(SqliteDatabase& history);

// Up to when something is recorded, in milliseconds since 1970; 0 for nothing.
std::int64_t lastRecorded(SqliteDatabase& history);

// Whose time is meant, by the file's own numbers.
class MeantStretches {
public:
    // Without any in `only`, all are meant.
    MeantStretches(SqliteDatabase& history, const std::vector<Amendment::Whose>& only);

    bool have(std::int64_t program, std::int64_t title) const {
        return m_areAll || m_numbers.contains({program, title});
    }

private:
    bool m_areAll;
    std::set<std::pair<std::int64_t, std::int64_t>> m_numbers;
};

// The conditions as the file's own numbers. The titles are in this connection's table "chosen".
struct HistoryChoice {
    static HistoryChoice of(SqliteDatabase& history, const HistoryChange::Forgotten& what);

    // 0 for all programs, -1 for one that is not in the file.
    std::int64_t program;
    // 0 for all titles.
    std::int64_t isByTitle;
    std::int64_t from;
    std::int64_t to;
};
