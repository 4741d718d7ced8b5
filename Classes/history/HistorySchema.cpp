// SPDX-License-Identifier: MIT
#include "Classes/history/HistorySchema.h"

#include "Classes/history/Sqlite.h"

#include <array>

namespace {

// The entry n brings a file from number n to n + 1. An entry is never changed after its release.
constexpr std::array kSteps{R"(
CREATE TABLE programs (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE);
CREATE TABLE titles (id INTEGER PRIMARY KEY, text TEXT NOT NULL UNIQUE);
INSERT INTO titles VALUES (0, '');
CREATE TABLE timers (id INTEGER PRIMARY KEY, application BLOB NOT NULL, window BLOB NOT NULL,
  deleted INTEGER NOT NULL DEFAULT 0);
CREATE INDEX timers_by_identity ON timers (application, window);
INSERT INTO timers VALUES (0, x'', x'', 0);
CREATE TABLE stretches (start INTEGER NOT NULL, n INTEGER NOT NULL, length INTEGER NOT NULL, offset INTEGER NOT NULL,
  program INTEGER NOT NULL, title INTEGER NOT NULL, timer INTEGER NOT NULL, presence INTEGER NOT NULL,
  PRIMARY KEY (start, n)) WITHOUT ROWID;
CREATE TABLE days (day INTEGER NOT NULL, program INTEGER NOT NULL, title INTEGER NOT NULL, timer INTEGER NOT NULL,
  presence INTEGER NOT NULL, length INTEGER NOT NULL,
  PRIMARY KEY (day, program, title, timer, presence)) WITHOUT ROWID;
CREATE TABLE months (month INTEGER NOT NULL, program INTEGER NOT NULL, timer INTEGER NOT NULL,
  presence INTEGER NOT NULL, length INTEGER NOT NULL,
  PRIMARY KEY (month, program, timer, presence)) WITHOUT ROWID;
CREATE TABLE settings (name TEXT PRIMARY KEY, value INTEGER NOT NULL) WITHOUT ROWID;
INSERT INTO settings VALUES ('day begins at', 0);
CREATE TABLE stores (content BLOB PRIMARY KEY, since INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE owed (generation INTEGER NOT NULL, application BLOB NOT NULL, program TEXT NOT NULL,
  window BLOB NOT NULL, document TEXT NOT NULL, length INTEGER NOT NULL,
  PRIMARY KEY (generation, application, program, window, document)) WITHOUT ROWID;
CREATE VIEW diary AS SELECT
  datetime((start + offset * 60000) / 1000, 'unixepoch') AS begin, length / 1000.0 AS seconds,
  programs.name AS program, titles.text AS title,
  CASE presence WHEN 0 THEN 'work' WHEN 1 THEN 'idle' ELSE 'byhand' END AS presence
  FROM stretches JOIN programs ON programs.id = program JOIN titles ON titles.id = title
  JOIN timers ON timers.id = timer WHERE NOT timers.deleted ORDER BY start, n;
PRAGMA user_version = 1;
)",
                            R"(
ALTER TABLE timers ADD COLUMN project BLOB NOT NULL DEFAULT x'';
CREATE TABLE projects (identity BLOB PRIMARY KEY, name TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE amended (start INTEGER NOT NULL, n INTEGER NOT NULL, made INTEGER NOT NULL, program INTEGER NOT NULL,
  title INTEGER NOT NULL, timer INTEGER NOT NULL, presence INTEGER NOT NULL,
  PRIMARY KEY (start, n, made)) WITHOUT ROWID;
CREATE INDEX amended_by_made ON amended (made);
CREATE VIEW amendments AS SELECT
  datetime(made / 1000 + offset * 60, 'unixepoch') AS made,
  datetime((start + offset * 60000) / 1000, 'unixepoch') AS begin, length / 1000.0 AS seconds,
  was.name AS was_program, wast.text AS was_title,
  CASE amended.presence WHEN 0 THEN 'work' WHEN 1 THEN 'idle' WHEN 2 THEN 'byhand' ELSE 'nothing' END AS was_presence,
  programs.name AS program, titles.text AS title,
  CASE stretches.presence WHEN 0 THEN 'work' WHEN 1 THEN 'idle' ELSE 'byhand' END AS presence
  FROM amended JOIN stretches USING (start, n) JOIN programs ON programs.id = stretches.program
  JOIN titles ON titles.id = stretches.title LEFT JOIN programs AS was ON was.id = amended.program
  LEFT JOIN titles AS wast ON wast.id = amended.title ORDER BY made, start, n;
PRAGMA user_version = 2;
)"};
static_assert(kSteps.size() == HistorySchema::kNumber);

} // namespace

namespace HistorySchema {

// In one statement, so that a file that another program is just making is seen before or after, never half
// made.
Form formOf(SqliteDatabase& database) {
    SqliteQuery file(database, "SELECT application_id, user_version, (SELECT count(*) FROM sqlite_schema) "
                               "FROM pragma_application_id, pragma_user_version");
    file.next();
    const auto application = file.integer(0);
    const auto number = file.integer(1);
    if (application == 0 && number == 0 && file.integer(2) == 0)
        return Form::Ours;
    if (application != kApplicationId || number < 1)
        return Form::Foreign;
    return number > kNumber ? Form::Newer : Form::Ours;
}

void bringUp(SqliteDatabase& database) {
    const auto numberNow = [&] { return std::size_t(database.number("PRAGMA user_version")); };
    if (numberNow() == 0)
        // Before the first table. One page holds what fifteen seconds bring.
        database.execute("PRAGMA page_size = 4096");
    while (numberNow() < kSteps.size()) {
        SqliteTransaction transaction(database);
        // Another program may have done this step while we waited for it.
        const auto number = numberNow();
        if (number >= kSteps.size())
            return;
        // In the same transaction as the first tables: a file without the number counts as new, and one with
        // it must have tables.
        if (number == 0)
            database.execute("PRAGMA application_id = 0x746b6c68");
        database.execute(kSteps[number]);
        transaction.commit();
    }
}

bool hasAmendments(SqliteDatabase& database) {
    return database.number("PRAGMA user_version") >= 2;
}

} // namespace HistorySchema
