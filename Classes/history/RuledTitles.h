// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFinding.h"
#include "Classes/rules/PastTitles.h"

// What rules meet in a history, before they are held over it.
struct RuledTitles {
    // What is listed at the most; the rest is only counted.
    static constexpr std::size_t kMostListed = 500;

    std::int64_t titles = 0;
    // Milliseconds.
    std::int64_t length = 0;
    // The longest first.
    std::vector<HistorySum> longest;

    // By the place of the rule in its list, what each decides about from the day `first` on. What a rule hides
    // already is in no history, and so is not among it.
    static std::vector<RuledTitles> metBy(SqliteDatabase& history, const PropertyListArray& rules,
                                          QDate first);
};

// What would be otherwise in all of a history, and by which documents it is known.
struct RuledPast {
    static RuledPast of(SqliteDatabase& history, const PropertyListArray& rules);

    RuledTitles changed;
    PastTitles past;
};

// Of a title that the history has: the text in its place, without what counts or ticks in it. Absent where not even the
// program may be known.
std::optional<QString> recordedTitleUnder(const TitleRules& rules, const QString& program,
                                          const QString& title);
