// SPDX-License-Identifier: MIT
#include "interface/pasteboard/SpreadsheetTable.h"

#include "Classes/report/ReportFormats.h"

#include <QMimeData>
#include <QRegularExpression>

namespace {

QByteArray csvLine(const QStringList& cells) {
    QByteArrayList written;
    for (const QString& cell : cells)
        written << ReportFormats::csvCell(cell);
    return written.join(',') + "\r\n";
}

QString tabbedLine(QStringList cells) {
    for (QString& cell : cells) {
        cell = ReportFormats::disarmed(cell);
        // What would end the cell or the line.
        for (QChar& character : cell)
            if (character == u'\t' || character == u'\n' || character == u'\r')
                character = u' ';
    }
    return cells.join(u'\t') + u'\n';
}

QString cell(const QString& text, const QString& tag, const QString& attributes = {}) {
    return QStringLiteral("<%1%2>%3</%1>").arg(tag, attributes, text);
}

// "12:03:05" as the part of a day that spreadsheets count in.
double dayPart(const QStringList& parts) {
    double value = 0;
    for (const QString& part : parts)
        value = value * 60 + part.toDouble();
    return value / (parts.size() == 3 ? 86'400 : 1'440);
}

QString textCell(const QString& text) {
    return cell(ReportFormats::disarmed(text).toHtmlEscaped(), QStringLiteral("td"),
                QStringLiteral(" sdnum=\"1033;0;@\" style=\"mso-number-format:'\\@'\""));
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

QString SpreadsheetTable::numberAttributes(const QString& shown) {
    static const QRegularExpression kDuration(QStringLiteral("^\\d+(:\\d\\d){1,2}$"));
    double value = 0;
    QString format;
    if (kDuration.match(shown).hasMatch()) {
        const QStringList parts = shown.split(u':');
        value = dayPart(parts);
        format = parts.size() == 3 ? QStringLiteral("[HH]:MM:SS") : QStringLiteral("[HH]:MM");
    } else {
        bool isNumber = false;
        value = shown.toDouble(&isNumber);
        if (!isNumber)
            return {};
        format = QStringLiteral("0.00");
    }
    return QStringLiteral(" sdval=\"%1\" sdnum=\"1033;0;%2\"").arg(QString::number(value, 'g', 15), format);
}

QString SpreadsheetTable::html(bool withHeads) const {
    QString lines;
    const auto addLine = [&](const QString& cells) { lines += cell(cells, QStringLiteral("tr")); };
    if (withHeads) {
        QString cells;
        for (const QString& head : heads)
            cells += cell(head.toHtmlEscaped(), QStringLiteral("th"));
        addLine(cells);
    }
    for (const QStringList& row : rows) {
        QString cells;
        for (qsizetype column = 0; column < row.size(); ++column)
            cells += column == kDurations
                         ? cell(row[column], QStringLiteral("td"),
                                QStringLiteral(" align=\"right\" style=\"mso-number-format:'[h]:mm:ss'\"") +
                                    numberAttributes(row[column]))
                         : textCell(row[column]);
        addLine(cells);
    }
    return QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>") + lines +
           QStringLiteral("</table></body></html>");
}

std::unique_ptr<QMimeData> SpreadsheetTable::copied(bool withHeads) const {
    const QString text = tabbed(withHeads);
    // In the order of the timers' forms: most receivers take the first that they know.
    auto forms = std::make_unique<QMimeData>();
    forms->setHtml(html(withHeads));
    forms->setData(QStringLiteral("text/tab-separated-values"), text.toUtf8());
    forms->setText(text);
    return forms;
}
