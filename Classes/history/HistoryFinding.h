// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"

#include <QStringList>

class SqliteDatabase;

// What there is of a program and a title.
struct HistorySum {
    QString program;
    QString title;
    // Milliseconds.
    std::int64_t length = 0;
};

// What in a history meets conditions, before it is forgotten.
struct HistoryFinding {
    // What is listed at the most; the rest is only counted.
    static constexpr int kMostListed = 500;

    static HistoryFinding of(SqliteDatabase& history, const HistoryChange::Forgotten& what);

    std::int64_t stretches = 0;
    // Milliseconds.
    std::int64_t length = 0;
    // Programs with their titles.
    std::int64_t sums = 0;
    // The longest first.
    std::vector<HistorySum> longest;
};

// The names of all programs, in their order.
QStringList programsIn(SqliteDatabase& history);

// Conditions in the numbers of a file. Titles are those in the table "chosen" of this connection.
struct HistoryChoice {
    static HistoryChoice of(SqliteDatabase& history, const HistoryChange::Forgotten& what);

    // 0 for all, -1 for one that is not there.
    std::int64_t program;
    // 0 for all.
    std::int64_t isByTitle;
    std::int64_t from;
    std::int64_t to;
};
