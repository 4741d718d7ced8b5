// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QMimeData;

// The rows of the history in forms that other programs read. In all of them times are durations that spreadsheets add
// up, and no name is taken for a formula.
namespace HistoryForms {

struct Line {
    // A program or a project, and what is below it; empty for all of it.
    QString name;
    QString part;
    // Milliseconds.
    qint64 length;
};

// RFC 4180, with a heading line, in UTF-8.
QByteArray csv(const QStringList& heads, const std::vector<Line>& lines);
// What is copied and dragged: a table in HTML, and text with tabs.
std::unique_ptr<QMimeData> copied(const QStringList& heads, const std::vector<Line>& lines);

} // namespace HistoryForms
