// SPDX-License-Identifier: MIT
#include "interface/history/HistoryForms.h"

#include "Classes/exchange/RtfTable.h"
#include "Classes/report/ReportFormats.h"

#include <QMimeData>

namespace {

QStringList cellsOf(const HistoryForms::Line& line) {
    return {line.name, line.part, ReportFormats::durationText(line.length)};
}

QByteArray csvLine(const QStringList& cells) {
    QByteArrayList written;
    for (const QString& cell : cells)
        written << ReportFormats::csvCell(cell);
    return written.join(',') + "\r\n";
}

QString tabbed(const std::vector<HistoryForms::Line>& lines) {
    QString text;
    for (const auto& line : lines) {
        QStringList cells = cellsOf(line);
        for (QString& cell : cells)
            cell = ReportFormats::disarmed(cell);
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

QString html(const std::vector<HistoryForms::Line>& lines) {
    QString rows;
    for (const auto& line : lines) {
        rows += QStringLiteral("<tr>");
        for (const QString& cell : cellsOf(line))
            rows += QStringLiteral("<td>%1</td>").arg(ReportFormats::disarmed(cell).toHtmlEscaped());
        rows += QStringLiteral("</tr>");
    }
    return QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>%1</table></body></html>")
        .arg(rows);
}

} // namespace

QByteArray HistoryForms::csv(const QStringList& heads, const std::vector<Line>& lines) {
    QByteArray text = csvLine(heads);
    for (const Line& line : lines)
        text += csvLine(cellsOf(line));
    return text;
}

std::unique_ptr<QMimeData> HistoryForms::copied(const QStringList& heads, const std::vector<Line>& lines) {
    RtfTable table(int(heads.size()), heads);
    for (const Line& line : lines)
        table.add(cellsOf(line));
    const QByteArray rtf = std::move(table).finished();
    const QString text = tabbed(lines);
    // In the order of the timers' forms: most receivers take the first that they know.
    auto forms = std::make_unique<QMimeData>();
    forms->setHtml(html(lines));
    forms->setData(QStringLiteral("text/tab-separated-values"), text.toUtf8());
    // Word processors ask for the second name.
    for (const char* name : {"text/rtf", "application/rtf"})
        forms->setData(QLatin1String(name), rtf);
    forms->setText(text);
    return forms;
}
