// SPDX-License-Identifier: MIT
#include "interface/pasteboard/SpreadsheetTable.h"

#include "Classes/exchange/RtfTable.h"
#include "Classes/report/ReportFormats.h"

#include <QMimeData>

namespace {

QByteArray csvLine(const QStringList& cells) {
    QByteArrayList written;
    for (const QString& cell : cells)
        written << ReportFormats::csvCell(cell);
    return written.join(',') + "\r\n";
}

QString tabbedLine(QStringList cells) {
    for (QString& cell : cells)
        cell = ReportFormats::disarmed(cell.simplified());
    return cells.join(u'\t') + u'\n';
}

QString htmlLine(const QStringList& cells, const QString& tag) {
    QString line = QStringLiteral("<tr>");
    for (const QString& cell : cells)
        line += QStringLiteral("<%1>%2</%1>").arg(tag, ReportFormats::disarmed(cell).toHtmlEscaped());
    return line + QStringLiteral("</tr>");
}

} // namespace

QByteArray SpreadsheetTable::csv() const {
    QByteArray text = csvLine(heads);
    for (const QStringList& row : rows)
        text += csvLine(row);
    return text;
}

QString SpreadsheetTable::tabbed(bool withHeads) const {
    QString text = withHeads ? tabbedLine(heads) : QString();
    for (const QStringList& row : rows)
        text += tabbedLine(row);
    return text;
}

QString SpreadsheetTable::html(bool withHeads) const {
    QString lines = withHeads ? htmlLine(heads, QStringLiteral("th")) : QString();
    for (const QStringList& row : rows)
        lines += htmlLine(row, QStringLiteral("td"));
    return QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>") + lines +
           QStringLiteral("</table></body></html>");
}

std::unique_ptr<QMimeData> SpreadsheetTable::copied(bool withHeads) const {
    RtfTable table(int(heads.size()), heads);
    // Spreadsheets may take this form before all others.
    for (QStringList row : rows) {
        for (QString& cell : row)
            cell = ReportFormats::disarmed(cell);
        table.add(row);
    }
    const QByteArray rtf = std::move(table).finished();
    const QString text = tabbed(withHeads);
    // In the order of the timers' forms: most receivers take the first that they know.
    auto forms = std::make_unique<QMimeData>();
    forms->setHtml(html(withHeads));
    forms->setData(QStringLiteral("text/tab-separated-values"), text.toUtf8());
    // Word processors ask for the second name.
    for (const char* name : {"text/rtf", "application/rtf"})
        forms->setData(QLatin1String(name), rtf);
    forms->setText(text);
    return forms;
}
