// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/TimeStoreItem.h"
#include "platform/foundation/Date.h"
#include "platform/foundation/Result.h"

// Timers as a table for spreadsheets.
namespace CsvExport {

// A head with the `total`, then a line a window with its application's name and time before the first, or a line an
// application without any. Names are those the timers were found under. No field is quoted, deliberately: a comma in a
// name shifts the columns.
QString text(const TimeStoreItem::Children& timers, Seconds total);
// Writes that text at `path` in UTF-16 with a byte-order mark, for the user alone. Not by way of another file: what stood
// there is gone if it fails.
Outcome write(const TimeStoreItem::Children& timers, Seconds total, const QString& path);
// The text in double quotes, with each of its own doubled. For those who want it; the export does not.
QString formatString(const QString& text);

} // namespace CsvExport
