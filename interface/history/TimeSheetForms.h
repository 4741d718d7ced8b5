// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/TimeSheet.h"

#include <QPageLayout>

#include <memory>

class QMimeData;
class QTextDocument;

// A time sheet as it is sent to somebody.
struct SheetPage {
    TimeSheet sheet;
    // Whose time it is; empty leaves it out.
    QString name;
    // Whatever there is to say about it, in lines; empty leaves it out.
    QString notes;
    // Hours with two decimals rather than hours and minutes.
    bool isDecimal = false;
};

// The written forms of a time sheet, in the user's language.
namespace TimeSheetForms {

// "Project", the days, "Sum".
QStringList heads(const TimeSheet& sheet);
// A time in seconds as the page shows it: "7:30", "7.50", or "7:30:15" where nothing is rounded. Empty for no time.
QString timeText(qint64 seconds, const SheetPage& page, bool hasSeconds);
// The line that says why the rows have more than their sum; empty where they have not.
QString sharingText(const TimeSheet& sheet);
// Whether any time has seconds.
bool hasSeconds(const TimeSheet& sheet);
// "16/11/2026 – 22/11/2026".
QString period(const TimeSheet& sheet);

// The table with its heading and its sums, as the page shows it.
QList<QStringList> table(const SheetPage& page);
// The whole page with a heading, for paper of this layout. Belongs to the caller.
std::unique_ptr<QTextDocument> document(const SheetPage& page);
// A4 or Letter, as is customary where the user lives, with the long side below.
QPageLayout pageLayout();
// The same as a file, with page numbers.
QByteArray pdf(const SheetPage& page);
// For spreadsheets: RFC 4180 in UTF-8, times as [H]:MM:SS.
QByteArray csv(const SheetPage& page);
// The table as HTML and as text with tabs. No name is taken for a formula. Belongs to the caller.
std::unique_ptr<QMimeData> copy(const SheetPage& page);

} // namespace TimeSheetForms
