// SPDX-License-Identifier: MIT
// Applying the rules for titles to what is in the history already.
#include "Classes/history/HistoryFile.h"
#include "Classes/history/RuledTitles.h"

namespace {

// What happens to the timer of a stretch when its title changes.
enum Kind : std::int64_t { TimerStays = 0, ToApplication = 1, ToNobody = 2 };

// "ruled": what replaces a pair of program and title. "moved": what replaces a timer, by timer and kind.
constexpr const char* kMakeTables =
    "CREATE TEMP TABLE IF NOT EXISTS ruled (program INTEGER, title INTEGER, newProgram INTEGER, "
    "newTitle INTEGER, kind INTEGER, PRIMARY KEY (program, title)) WITHOUT ROWID;"
    "CREATE TEMP TABLE IF NOT EXISTS moved (timer INTEGER, kind INTEGER, other INTEGER, "
    "PRIMARY KEY (timer, kind)) WITHOUT ROWID;"
    "CREATE TEMP TABLE IF NOT EXISTS sums (day INTEGER, program INTEGER, title INTEGER, timer INTEGER, "
    "presence INTEGER, length INTEGER); DELETE FROM ruled; DELETE FROM moved; DELETE FROM sums";

constexpr const char* kMoveStretches =
    "UPDATE stretches SET (program, title, timer) = (SELECT newProgram, newTitle, "
    "ifnull((SELECT other FROM moved WHERE moved.timer = stretches.timer AND moved.kind = ruled.kind), "
    "stretches.timer) FROM ruled WHERE ruled.program = stretches.program AND ruled.title = stretches.title) "
    "WHERE presence <> 1 AND EXISTS (SELECT 1 FROM ruled "
    "WHERE ruled.program = stretches.program AND ruled.title = stretches.title)";

constexpr const char* kMoveBefore =
    "UPDATE amended SET (program, title, timer) = (SELECT newProgram, newTitle, "
    "ifnull((SELECT other FROM moved WHERE moved.timer = amended.timer AND moved.kind = ruled.kind), "
    "amended.timer) FROM ruled WHERE ruled.program = amended.program AND ruled.title = amended.title) "
    "WHERE presence <> 1 AND EXISTS (SELECT 1 FROM ruled "
    "WHERE ruled.program = amended.program AND ruled.title = amended.title)";

// All that rows are, and were before they were amended.
constexpr const char* kPairs = "SELECT program, title, programs.name, titles.text FROM "
                               "(SELECT program, title FROM days WHERE presence <> 1 UNION "
                               "SELECT program, title FROM amended WHERE presence <> 1) "
                               "JOIN programs ON programs.id = program JOIN titles ON titles.id = title";
constexpr const char* kTimers =
    "SELECT DISTINCT timer, kind, application, project FROM "
    "(SELECT program, title, timer FROM days WHERE presence <> 1 UNION "
    "SELECT program, title, timer FROM amended WHERE presence <> 1) AS used CROSS JOIN ruled "
    "ON ruled.program = used.program AND ruled.title = used.title "
    "JOIN timers ON timers.id = timer WHERE kind > 0 AND NOT deleted";

constexpr const char* kGatherSums =
    "INSERT INTO sums SELECT day, newProgram, newTitle, ifnull(other, days.timer), presence, sum(length) "
    "FROM days CROSS JOIN ruled ON ruled.program = days.program AND ruled.title = days.title "
    "LEFT JOIN moved ON moved.timer = days.timer AND moved.kind = ruled.kind "
    "WHERE presence <> 1 GROUP BY 1, 2, 3, 4, 5";

constexpr const char* kDropSums = "DELETE FROM days WHERE presence <> 1 AND EXISTS (SELECT 1 FROM ruled "
                                  "WHERE ruled.program = days.program AND ruled.title = days.title)";

constexpr const char* kPutSums = "INSERT INTO days SELECT * FROM sums WHERE true "
                                 "ON CONFLICT DO UPDATE SET length = length + excluded.length";

} // namespace

void HistoryFile::apply(const HistoryChange::Ruled& change) {
    m_database.execute(kMakeTables);
    rulePairs(TitleRules(change.rules));
    moveTimers(change.hidden);
    sqliteRun(m_database, kMoveStretches);
    sqliteRun(m_database, kMoveBefore);
    sqliteRun(m_database, kGatherSums);
    sqliteRun(m_database, kDropSums);
    sqliteRun(m_database, kPutSums);
    sumMonthsAgain();
    // Owed time is listed under the old names.
    sqliteRun(m_database, "DELETE FROM owed");
    dropUnused();
    m_hasToEmpty = true;
}

void HistoryFile::rulePairs(const TitleRules& rules) {
    struct Pair {
        std::int64_t program;
        std::int64_t title;
        QString name;
        std::optional<QString> allowed;
    };
    std::vector<Pair> changed;
    for (SqliteQuery row(m_database, kPairs); row.next();) {
        const QString title = row.text(3);
        auto allowed = recordedTitleUnder(rules, row.text(2), title);
        if (allowed != title)
            changed.push_back({row.integer(0), row.integer(1), row.text(2), std::move(allowed)});
    }
    for (const auto& [program, title, name, allowed] : changed)
        sqliteRun(m_database, "INSERT INTO ruled VALUES (?, ?, ?, ?, ?)", program, title,
                  allowed ? program : programId(kPrivateName), allowed ? titleId(*allowed) : 0,
                  std::int64_t(!allowed             ? ToNobody
                               : allowed->isEmpty() ? ToApplication
                                                    : TimerStays));
}

// Deleted timers stay deleted: undoing could bring them back while the program runs.
void HistoryFile::moveTimers(const std::optional<Identity>& hidden) {
    struct Move {
        std::int64_t timer;
        std::int64_t kind;
        std::optional<Identity> application;
        // What a person has said stays said.
        std::optional<RowProject> project;
    };
    std::vector<Move> moves;
    for (SqliteQuery row(m_database, kTimers); row.next();)
        moves.push_back({row.integer(0), row.integer(1),
                         row.integer(1) == ToNobody ? hidden : Identity::fromBytes(row.bytes(2)),
                         historyProject(row.bytes(3))});
    for (const auto& [timer, kind, application, project] : moves)
        sqliteRun(m_database, "INSERT INTO moved VALUES (?, ?, ?)", timer, kind,
                  application || project ? timerId({application, std::nullopt, project}) : 0);
}
