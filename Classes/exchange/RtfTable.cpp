// SPDX-License-Identifier: MIT
#include "Classes/exchange/RtfTable.h"

namespace {

// Twentieths of a point.
constexpr int kCellWidth = 2400;

void spell(QByteArray& out, const QString& text) {
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        if (unit == u'\\' || unit == u'{' || unit == u'}')
            (out += '\\') += char(unit);
        else if (unit == u'\t')
            out += "\\tab ";
        else if (unit == u'\n' || character == QChar::LineSeparator)
            out += "\\line ";
        else if (unit >= 0x20 && unit < 0x7F)
            out += char(unit);
        else if (unit >= 0x80)
            // A signed number, and a question mark for readers that do not know Unicode.
            ((out += "\\u") += QByteArray::number(qint16(unit))) += '?';
    }
}

} // namespace

RtfTable::RtfTable(int columns, std::span<const QString> heading)
    : m_rowStart("\\trowd")
    , m_text("{\\rtf1\\ansi\\uc1\\deff0{\\fonttbl{\\f0\\fswiss Helvetica;}}\\f0\n") {
    for (int column = 1; column <= columns; ++column)
        m_rowStart += "\\cellx" + QByteArray::number(column * kCellWidth);
    m_rowStart += "\n\\pard\\intbl ";
    add(heading, true);
}

void RtfTable::add(std::span<const QString> cells) {
    add(cells, false);
}

void RtfTable::add(std::span<const QString> cells, bool isBold) {
    m_text += m_rowStart;
    for (const QString& cell : cells) {
        if (isBold)
            m_text += "{\\b ";
        spell(m_text, cell);
        if (isBold)
            m_text += '}';
        m_text += "\\cell ";
    }
    m_text += "\\row\n";
}

QByteArray RtfTable::finished() && {
    return std::move(m_text += "\\pard\n}");
}
