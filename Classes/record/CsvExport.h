// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/WholeFile.h"
#include "Classes/store/TimeStoreItem.h"
#include "platform/foundation/time/Date.h"
#include "platform/foundation/values/SystemLog.h"

// Timers as a table for spreadsheets.
namespace CsvExport {

// A head with the `total`, then a line for each window, with its application's name and time before the first
// one; an application without windows has a line of its own. Names are the original ones. No field is quoted,
// deliberately: a comma in a name shifts the columns.
QString text(const TimeStoreItem::Children& timers, Seconds total);
// Writes such a text to `path` in UTF-16 with a byte-order mark, as WholeFile::write() does.
Outcome writeText(const QString& text, const QString& path, const WholeFile::Progress& progress = {},
                  FileCalls& calls = FileCalls::system());
Outcome write(const TimeStoreItem::Children& timers, Seconds total, const QString& path);
// Logs the one line for a table that could not be written.
void tellFailure(SystemLog& log);
// The text in double quotes, with its own quotes doubled. The export itself does not use this.
QString formatString(const QString& text);

} // namespace CsvExport
