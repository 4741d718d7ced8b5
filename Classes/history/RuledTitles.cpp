// SPDX-License-Identifier: MIT
#include "Classes/history/RuledTitles.h"

#include "Classes/engine/TimeActivator.h"
#include "Classes/history/HistoryFile.h"
#include "Classes/rules/SteadyTitle.h"

namespace {

// Idle time has no title, so no rule matches it. Deleted rows can come back, and are in the file until then.
constexpr const char* kTitlesSince =
    "SELECT programs.name, titles.text, time FROM (SELECT program, title, sum(length) AS time FROM days "
    "WHERE day >= ? AND presence <> 1 AND (? OR timer NOT IN (SELECT id FROM timers WHERE deleted)) GROUP BY "
    "program, title) AS sums "
    "JOIN programs ON programs.id = sums.program JOIN titles ON titles.id = sums.title ORDER BY time DESC";

constexpr std::int64_t kWithoutDeleted = 0;
constexpr std::int64_t kWithDeleted = 1;

void add(RuledTitles& to, const HistorySum& sum) {
    ++to.titles;
    to.length += sum.length;
    if (to.longest.size() < RuledTitles::kMostListed)
        to.longest.push_back(sum);
}

} // namespace

std::optional<QString> recordedTitleUnder(const TitleRules& rules, const QString& program,
                                          const QString& title) {
    const auto allowed = rules.allowed(program, title);
    // An empty title stays empty.
    if (!allowed || title.isEmpty())
        return allowed ? title : allowed;
    return *allowed == title ? title : steadyTitle(*allowed);
}

std::vector<RuledTitles> RuledTitles::metBy(SqliteDatabase& history, const PropertyListArray& list,
                                            QDate first) {
    const TitleRules rules{PropertyListValue(list)};
    std::vector<RuledTitles> met(list.size());
    for (SqliteQuery row(history, kTitlesSince, historyDay(first), kWithoutDeleted); row.next();) {
        const HistorySum sum{row.text(0), row.text(1), row.integer(2)};
        if (const auto place = rules.deciding(sum.program, sum.title))
            add(met[*place], sum);
    }
    return met;
}

RuledPast RuledPast::of(SqliteDatabase& history, const PropertyListArray& list) {
    RuledPast ruled{{}, PastTitles(PropertyListValue(list))};
    const TitleRules& rules = ruled.past.rules();
    std::vector<std::pair<QString, QString>> kept;
    for (SqliteQuery row(history, kTitlesSince, std::int64_t(0), kWithDeleted); row.next();) {
        const HistorySum sum{row.text(0), row.text(1), row.integer(2)};
        const auto allowed = recordedTitleUnder(rules, sum.program, sum.title);
        const auto document = TimeActivator::getDocStringNameForName(sum.title);
        if (allowed == sum.title) {
            if (document)
                kept.emplace_back(sum.program, *document);
            continue;
        }
        add(ruled.changed, sum);
        if (document)
            ruled.past.note(sum.program, *document, allowed);
    }
    for (const auto& [program, document] : kept)
        ruled.past.keep(program, document);
    return ruled;
}
