// SPDX-License-Identifier: MIT
#pragma once

#include "helpers/ticklog-report/Report.h"

#include <QDateTime>

// What is printed, in UTF-8.
namespace ReportFormats {

// Columns for people, with "h:mm:ss" at the right and a sum below.
QByteArray table(const Report& report);
// RFC 4180, with a line of heads. A cell that a spreadsheet would take for a formula has a ' before it.
QByteArray csv(const Report& report);
// An array of objects.
QByteArray json(const Report& report);
// A calendar with an event a stretch. `now` is when it was made.
QByteArray ics(const Report& report, const QDateTime& now);

QByteArray text(const Report& report, ReportFormat format, const QDateTime& now);

} // namespace ReportFormats
