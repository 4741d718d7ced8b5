// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/Report.h"

#include <QDateTime>

// The printed forms, in UTF-8.
namespace ReportFormats {

// Columns for people, with "h:mm:ss" on the right and the sum at the bottom.
QByteArray table(const Report& report);
// RFC 4180, with a heading line. A cell that a spreadsheet would take for a formula begins with '.
QByteArray csv(const Report& report);
// An array of objects.
QByteArray json(const Report& report);
// A calendar with one event for each stretch. `now` is the time at which it is made.
QByteArray ics(const Report& report, const QDateTime& now);

// What a spreadsheet would take for a formula, with an apostrophe before it; other texts as they are.
QString disarmed(const QString& text);
// A cell of RFC 4180 in UTF-8, disarmed.
QByteArray csvCell(const QString& text);
// "12:03:05".
QString durationText(qint64 milliseconds);

QByteArray text(const Report& report, ReportFormat format, const QDateTime& now);

} // namespace ReportFormats
