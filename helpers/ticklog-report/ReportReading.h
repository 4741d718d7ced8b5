// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Sqlite.h"
#include "helpers/ticklog-report/Report.h"

// Gives the report what a history has of its time: whole days as they are summed up there, and stretch by stretch what is
// wanted by hours or one by one, or is no whole day. Throws SqliteError.
void readInto(Report& report, SqliteDatabase& history, const ReportRequest& request, int dayBegins);
