// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/WholeFile.h"
#include "Classes/store/TimeStoreItem.h"
#include "platform/foundation/time/Date.h"
#include "platform/foundation/values/SystemLog.h"

// Timers as a table for spreadsheets.
namespace CsvExport {

// A head with the `total`, then a line a window with its application's name and time before the first, or a line an
// application without any. Names are those the timers were found under. No field is quoted, deliberately: a comma in a
// name shifts the columns.
QString text(const TimeStoreItem::Children& timers, Seconds total);
// Writes such a text at `path` in UTF-16 with a byte-order mark, as WholeFile::write() does.
Outcome writeText(const QString& text, const QString& path, const WholeFile::Progress& progress = {},
                  FileCalls& calls = FileCalls::system());
Outcome write(const TimeStoreItem::Children& timers, Seconds total, const QString& path);
// The line that the log gets for every table that could not be written.
void tellFailure(SystemLog& log);
// The text in double quotes, with each of its own doubled. For those who want it; the export does not.
QString formatString(const QString& text);

} // namespace CsvExport
