// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/FileCalls.h"
#include "Classes/TimeStoreItem.h"
#include "platform/foundation/Date.h"
#include "platform/foundation/Result.h"

#include <functional>

// Timers as a table for spreadsheets.
namespace CsvExport {

// A head with the `total`, then a line a window with its application's name and time before the first, or a line an
// application without any. Names are those the timers were found under. No field is quoted, deliberately: a comma in a
// name shifts the columns.
QString text(const TimeStoreItem::Children& timers, Seconds total);
// Told from 0 to 1 while a file is written, after every piece of it.
using Progress = std::function<void(double)>;
// Writes such a text at `path` in UTF-16 with a byte-order mark, a new file for the user alone. Not by way of another
// file: an existing one keeps its links and its permissions, and what is known not to fit on the disk replaces nothing.
// Only files are written to, no pipes or devices.
Outcome writeText(const QString& text, const QString& path, const Progress& progress = {},
                  FileCalls& calls = FileCalls::system());
Outcome write(const TimeStoreItem::Children& timers, Seconds total, const QString& path);
// The text in double quotes, with each of its own doubled. For those who want it; the export does not.
QString formatString(const QString& text);

} // namespace CsvExport
