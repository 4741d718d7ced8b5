// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Sqlite.h"
#include "helpers/ticklog-report/Report.h"

// Gives the report the time in a history. Whole days come from the history's own sums; single stretches are
// used where hours or stretches were asked for, or where a day is not whole. Throws SqliteError.
void readInto(Report& report, SqliteDatabase& history, const ReportRequest& request, int dayBegins);
