// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <span>

// A table in Rich Text Format, written row by row. Characters beyond ASCII are written as numbers, so that
// every reader understands them.
class RtfTable {
public:
    // `columns` is the number of cells of each row. The first row is the heading, in bold.
    RtfTable(int columns, std::span<const QString> heading);
    void add(std::span<const QString> cells);
    // The whole document. Nothing may be added afterwards.
    QByteArray finished() &&;

private:
    void add(std::span<const QString> cells, bool isBold);

    // Every row begins with this: the widths of its cells.
    QByteArray m_rowStart;
    QByteArray m_text;
};
