// SPDX-License-Identifier: MIT
#include "interface/history/TimeSheetForms.h"

#include "Classes/report/ReportFormats.h"
#include "interface/history/PictureTexts.h"
#include "interface/pasteboard/SpreadsheetTable.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QBuffer>
#include <QLocale>
#include <QMimeData>
#include <QPdfWriter>
#include <QTextDocument>

namespace {

// Millimetres.
constexpr int kPageMargin = 18;

// The cells of a row: its name, its times, its sum.
template<class Text>
QStringList cellsOf(const QString& name, const std::vector<qint64>& times, qint64 sum, Text text) {
    QStringList cells{name};
    for (const qint64 time : times)
        cells << text(time);
    return cells << text(sum);
}

// All rows from the heading to the sums.
template<class Text>
QList<QStringList> tableOf(const TimeSheet& sheet, Text text) {
    QList<QStringList> rows{TimeSheetForms::heads(sheet)};
    for (const TimeSheet::Row& row : sheet.rows())
        rows << cellsOf(row.project == kNoProject ? localized("No Project") : row.project, row.cells,
                        row.sum(), text);
    return rows << cellsOf(localized("Sum"), sheet.sums(), sheet.sum(), text);
}

// So small that as many days stand beside each other.
double pointsFor(int days) {
    return days > 16 ? 6 : days > 8 ? 8 : 10;
}

// A line below the heading and above the sums, and a pale one between the projects.
QString htmlTable(const QList<QStringList>& rows, int days) {
    QString html = QStringLiteral("<table width=\"100%\" cellpadding=\"5\" cellspacing=\"0\" "
                                  "style=\"border-collapse:collapse; font-size:%1pt;\">")
                       .arg(pointsFor(days));
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const bool isHeading = row == 0;
        const bool isSum = row == rows.size() - 1;
        const bool isStrongLine = isHeading || row == rows.size() - 2;
        html += QStringLiteral("<tr>");
        for (qsizetype cell = 0; cell < rows[row].size(); ++cell) {
            const bool isBold = isHeading || isSum || cell == rows[row].size() - 1;
            const QString number =
                isHeading || cell == 0 ? QString() : SpreadsheetTable::numberAttributes(rows[row][cell]);
            html += QStringLiteral("<%1 align=\"%2\"%5 style=\"border-bottom:%3;\">%4</%1>")
                        .arg(isBold ? QStringLiteral("th") : QStringLiteral("td"),
                             cell == 0 ? QStringLiteral("left") : QStringLiteral("right"),
                             isStrongLine ? QStringLiteral("1px solid #303030")
                             : isSum      ? QStringLiteral("none")
                                          : QStringLiteral("1px solid #d0d0d0"),
                             rows[row][cell].toHtmlEscaped(), number);
        }
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table>");
}

SpreadsheetTable spreadsheet(const QList<QStringList>& rows) {
    return {.heads = rows.front(), .rows = {rows.begin() + 1, rows.end()}};
}

QString paragraph(const QString& text, const char* style = "") {
    return QStringLiteral("<p style=\"%1\">%2</p>")
        .arg(QLatin1String(style), text.toHtmlEscaped().replace(u'\n', QLatin1String("<br>")));
}

} // namespace

QStringList TimeSheetForms::heads(const TimeSheet& sheet) {
    const QLocale locale;
    QStringList heads{localized("Project")};
    for (int day = 0; day < sheet.days(); ++day) {
        const QDate date = sheet.first().addDays(day);
        heads << locale.dayName(date.dayOfWeek(), QLocale::ShortFormat) + u' ' + QString::number(date.day());
    }
    return heads << localized("Sum");
}

QList<QStringList> TimeSheetForms::table(const SheetPage& page) {
    const bool isExact = hasSeconds(page.sheet);
    return tableOf(page.sheet, [&](qint64 time) { return timeText(time, page, isExact); });
}

QString TimeSheetForms::timeText(qint64 seconds, const SheetPage& page, bool hasSeconds) {
    if (seconds == 0)
        return {};
    if (page.isDecimal)
        return QLocale().toString(double(seconds) / 3600, 'f', 2);
    const QString text = ReportFormats::durationText(seconds * 1000);
    return hasSeconds ? text : text.chopped(3);
}

QString TimeSheetForms::sharingText(const TimeSheet& sheet) {
    return sheet.hasSharedTime()
               ? localized("Time that belongs to several projects is in each of their rows.")
               : QString();
}

bool TimeSheetForms::hasSeconds(const TimeSheet& sheet) {
    const auto haveSeconds = [](const std::vector<qint64>& times) {
        return std::ranges::any_of(times, [](qint64 time) { return time % 60 != 0; });
    };
    return haveSeconds(sheet.sums()) ||
           std::ranges::any_of(sheet.rows(), haveSeconds, &TimeSheet::Row::cells);
}

QString TimeSheetForms::period(const TimeSheet& sheet) {
    return PictureTexts::days(sheet.first(), sheet.first().addDays(sheet.days() - 1));
}

std::unique_ptr<QTextDocument> TimeSheetForms::document(const SheetPage& page) {
    QString html = paragraph(localized("Time Sheet"), "font-size:22pt; margin-bottom:2pt;") +
                   paragraph(period(page.sheet), "font-size:13pt; color:#505050; margin-top:0pt;");
    if (!page.name.isEmpty())
        html += paragraph(page.name, "font-size:11pt; font-weight:bold;");
    // Tables have no margin of their own.
    html += paragraph(QStringLiteral("\u00a0"), "font-size:4pt;") + htmlTable(table(page), page.sheet.days());
    if (const QString text = sharingText(page.sheet); !text.isEmpty())
        html += paragraph(text);
    if (page.sheet.measured() != page.sheet.sum())
        html += paragraph(
            localized("Measured: %@")
                .replace(QLatin1String("%@"), ReportFormats::durationText(page.sheet.measured() * 1000)));
    if (!page.notes.isEmpty())
        html += paragraph(page.notes);
    auto document = std::make_unique<QTextDocument>();
    QFont font = document->defaultFont();
    font.setPointSize(10);
    document->setDefaultFont(font);
    document->setHtml(html);
    return document;
}

QPageLayout TimeSheetForms::pageLayout() {
    const bool isLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Landscape,
            QMarginsF(kPageMargin, kPageMargin, kPageMargin, kPageMargin), QPageLayout::Millimeter};
}

QByteArray TimeSheetForms::pdf(const SheetPage& page) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(pageLayout());
    writer.setTitle(localized("Time Sheet") + u' ' + period(page.sheet));
    // Numbers the pages by itself.
    document(page)->print(&writer);
    return buffer.data();
}

QByteArray TimeSheetForms::csv(const SheetPage& page) {
    return spreadsheet(
               tableOf(page.sheet, [](qint64 time) { return ReportFormats::durationText(time * 1000); }))
        .csv();
}

std::unique_ptr<QMimeData> TimeSheetForms::copy(const SheetPage& page) {
    QList<QStringList> rows = table(page);
    auto forms = spreadsheet(rows).copied(true);
    for (QStringList& row : rows)
        for (QString& cell : row)
            cell = ReportFormats::disarmed(cell);
    // With the lines and sides that the page has.
    forms->setHtml(QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body>%1</body></html>")
                       .arg(htmlTable(rows, page.sheet.days())));
    return forms;
}
