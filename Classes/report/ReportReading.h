// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Sqlite.h"
#include "Classes/report/Report.h"
#include "Classes/report/UnwrittenRows.h"

// How to open this history: at rest if there is no journal beside it. Then nothing is left beside a file that
// no other program has open, and a backup can be read where nothing can be written.
SqliteDatabase::Mode howToRead(const QString& path);

// Gives the report the time in a history. Whole days come from the history's own sums; single stretches are
// used where hours or stretches were asked for, or where a day is not whole. Takes rows of `unwritten` in
// place of the file's, except for days that are read whole. Throws SqliteError.
void readInto(Report& report, SqliteDatabase& history, const ReportRequest& request, int dayBegins,
              const UnwrittenRows& unwritten = {});
