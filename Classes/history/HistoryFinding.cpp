// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryFinding.h"

#include "Classes/history/HistorySchema.h"
#include "Classes/history/Sqlite.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int64_t kLongestRow = 3'600'000;

// Looks the texts up last, when everything is added up. With ten years of history that is thirty times as
// fast.
constexpr const char* kInRange =
    "SELECT programs.name, titles.text, time FROM (SELECT program, title, "
    "sum(min(start + length, ?) - max(start, ?)) AS time FROM stretches "
    "WHERE start >= ? AND start < ? AND start + length > ? AND (? = 0 OR program = ?) "
    "AND (? = 0 OR title IN (SELECT id FROM chosen)) GROUP BY program, title) AS sums "
    "JOIN programs ON programs.id = sums.program JOIN titles ON titles.id = sums.title ORDER BY time DESC";
constexpr const char* kAtAnyTime =
    "SELECT programs.name, titles.text, time FROM (SELECT program, title, sum(length) AS time FROM days "
    "WHERE (? = 0 OR program = ?) AND (? = 0 OR title IN (SELECT id FROM chosen)) "
    "GROUP BY program, title) AS sums "
    "JOIN programs ON programs.id = sums.program JOIN titles ON titles.id = sums.title ORDER BY time DESC";

// What stretches were before they were amended.
constexpr const char* kBefore =
    "SELECT programs.name, titles.text, time FROM (SELECT amended.program, amended.title, "
    "sum(min(start + length, ?) - max(start, ?)) AS time FROM amended JOIN stretches USING (start, n) "
    "WHERE start >= ? AND start < ? AND start + length > ? AND amended.program <> 0 "
    "AND (? = 0 OR amended.program = ?) AND (? = 0 OR amended.title IN (SELECT id FROM chosen)) "
    "GROUP BY amended.program, amended.title) AS sums "
    "JOIN programs ON programs.id = sums.program JOIN titles ON titles.id = sums.title ORDER BY time DESC";

// Finds all matching titles, upper or lower case.
void chooseTitles(SqliteDatabase& history, const QString& text, bool isPart) {
    history.execute("CREATE TEMP TABLE IF NOT EXISTS chosen (id INTEGER PRIMARY KEY); DELETE FROM chosen");
    if (!isPart)
        return sqliteRun(history, "INSERT INTO chosen SELECT id FROM titles WHERE text = ?", text);
    for (SqliteQuery title(history, "SELECT id, text FROM titles"); title.next();)
        if (title.text(1).contains(text, Qt::CaseInsensitive))
            sqliteRun(history, "INSERT INTO chosen VALUES (?)", title.integer(0));
}

} // namespace

HistoryChoice HistoryChoice::of(SqliteDatabase& history, const HistoryChange::Forgotten& what) {
    HistoryChoice choice{0, what.title ? 1 : 0, what.from.value_or(std::numeric_limits<std::int64_t>::min()),
                         what.to.value_or(std::numeric_limits<std::int64_t>::max())};
    if (what.program) {
        SqliteQuery row(history, "SELECT id FROM programs WHERE name = ?", *what.program);
        choice.program = row.next() ? row.integer(0) : -1;
    }
    history.execute("CREATE TEMP TABLE IF NOT EXISTS chosen (id INTEGER PRIMARY KEY)");
    if (what.title)
        chooseTitles(history, *what.title, what.isTitlePart);
    return choice;
}

HistoryFinding HistoryFinding::of(SqliteDatabase& history, const HistoryChange::Forgotten& what) {
    const HistoryChoice choice = HistoryChoice::of(history, what);
    HistoryFinding finding;
    const auto isListed = [&](const QString& program, const QString& title) {
        return std::ranges::any_of(finding.longest, [&](const HistorySum& sum) {
            return sum.program == program && sum.title == title;
        });
    };
    const auto add = [&](SqliteQuery&& row, bool isBefore = false) {
        while (row.next()) {
            if (isBefore && isListed(row.text(0), row.text(1)))
                continue;
            ++finding.sums;
            finding.length += row.integer(2);
            if (finding.sums <= kMostListed)
                finding.longest.push_back({row.text(0), row.text(1), row.integer(2)});
        }
    };
    if (what.from || what.to)
        add(SqliteQuery(history, kInRange, choice.to, choice.from,
                        what.from ? choice.from - kLongestRow : choice.from, choice.to, choice.from,
                        choice.program, choice.program, choice.isByTitle));
    else
        add(SqliteQuery(history, kAtAnyTime, choice.program, choice.program, choice.isByTitle));
    if (HistorySchema::hasAmendments(history))
        add(SqliteQuery(history, kBefore, choice.to, choice.from,
                        what.from ? choice.from - kLongestRow : choice.from, choice.to, choice.from,
                        choice.program, choice.program, choice.isByTitle),
            true);
    return finding;
}

std::int64_t stretchesIn(SqliteDatabase& history, const std::vector<Amendment::Piece>& pieces) {
    std::int64_t count = 0;
    for (const auto& [from, to] : pieces) {
        SqliteQuery row(history, "SELECT count(*) FROM stretches WHERE start >= ? AND start < ?", from, to);
        count += row.next() ? row.integer(0) : 0;
    }
    return count;
}

std::int64_t lastRecorded(SqliteDatabase& history) {
    SqliteQuery row(history,
                    "SELECT ifnull(max(start + length), 0) FROM stretches "
                    "WHERE start >= (SELECT max(start) FROM stretches) - ?",
                    kLongestRow);
    return row.next() ? row.integer(0) : 0;
}

MeantStretches::MeantStretches(SqliteDatabase& history, const std::vector<Amendment::Whose>& only)
    : m_areAll(only.empty()) {
    for (const auto& [program, title] : only) {
        SqliteQuery row(history,
                        "SELECT programs.id, titles.id FROM programs, titles "
                        "WHERE programs.name = ? AND titles.text = ?",
                        program, title);
        if (row.next())
            m_numbers.emplace(row.integer(0), row.integer(1));
    }
}

QStringList programsIn(SqliteDatabase& history) {
    QStringList names;
    for (SqliteQuery row(history, "SELECT name FROM programs ORDER BY name COLLATE NOCASE"); row.next();)
        names << row.text(0);
    return names;
}
