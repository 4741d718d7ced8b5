// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QMimeData;

// A table in the forms that spreadsheets read. Durations are "12:03:05", which they add up, and no text is taken
// for a formula.
struct SpreadsheetTable {
    // RFC 4180, with a heading line, in UTF-8.
    QByteArray csv() const;
    // What is copied and dragged: HTML, Rich Text, and text with tabs. Without heads, only Rich Text has the
    // heading line, because its columns need it.
    std::unique_ptr<QMimeData> copied(bool withHeads) const;

    QStringList heads;
    std::vector<QStringList> rows;

private:
    QString tabbed(bool withHeads) const;
    QString html(bool withHeads) const;
};
