// SPDX-License-Identifier: MIT
#include "interface/history/HistoryForms.h"

#include "Classes/report/ReportFormats.h"
#include "interface/pasteboard/SpreadsheetTable.h"

#include <QMimeData>

namespace {

SpreadsheetTable tableOf(const QStringList& heads, const std::vector<HistoryForms::Line>& lines) {
    SpreadsheetTable table{.heads = heads, .rows = {}};
    for (const HistoryForms::Line& line : lines)
        table.rows.push_back({line.name, line.part, ReportFormats::durationText(line.length)});
    return table;
}

} // namespace

QByteArray HistoryForms::csv(const QStringList& heads, const std::vector<Line>& lines) {
    return tableOf(heads, lines).csv();
}

std::unique_ptr<QMimeData> HistoryForms::copied(const QStringList& heads, const std::vector<Line>& lines) {
    return tableOf(heads, lines).copied(false);
}
