// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QMimeData;

// A table in the forms that spreadsheets read: they add up its durations, and take no text for a formula.
struct SpreadsheetTable {
    // The column of durations, which are written "12:03:05".
    static constexpr qsizetype kDurations = 2;

    // RFC 4180, with a heading line, in UTF-8.
    QByteArray csv() const;
    // What is copied and dragged: HTML, which says how each cell is meant, and text with tabs. Not in Rich Text:
    // spreadsheets that take it before HTML show its durations as times of day.
    std::unique_ptr<QMimeData> copied(bool withHeads) const;
    // What a cell of HTML needs so that spreadsheets read a number there, whatever their language: a duration
    // ("12:03:05", "7:30") or a number ("7.50"). Empty for other texts.
    static QString numberAttributes(const QString& shown);

    QStringList heads;
    std::vector<QStringList> rows;

private:
    QString tabbed(bool withHeads) const;
    QString html(bool withHeads) const;
};
