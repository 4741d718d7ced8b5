// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFinding.h"
#include "Classes/rules/PastTitles.h"

// The titles in a history that rules match, before the rules are applied to it.
struct RuledTitles {
    // At most this many are listed; the rest are only counted.
    static constexpr std::size_t kMostListed = 500;

    std::int64_t titles = 0;
    // Milliseconds.
    std::int64_t length = 0;
    // The longest first.
    std::vector<HistorySum> longest;

    // For each rule, by its position in the list: the titles that it decides about, from the day `first` on.
    // What a rule already hides is in no history, so it is not among them; nor are deleted rows.
    static std::vector<RuledTitles> metBy(SqliteDatabase& history, const PropertyListArray& rules,
                                          QDate first);
};

// What the rules would change in a whole history, and the documents by which rows of the tree are recognised.
struct RuledPast {
    static RuledPast of(SqliteDatabase& history, const PropertyListArray& rules);

    RuledTitles changed;
    PastTitles past;
};

// What is recorded instead of a title in the history, without parts that count or tick. Absent where not even
// the program may be known.
std::optional<QString> recordedTitleUnder(const TitleRules& rules, const QString& program,
                                          const QString& title);
