// SPDX-License-Identifier: MIT
#include "interface/pasteboard/Rtf.h"

#include <QTextDocument>
#include <QTextTable>

namespace {

// Twentieths of a point.
constexpr int kCellWidth = 2400;

QByteArray spelled(const QString& text) {
    QByteArray out;
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        if (unit == u'\\' || unit == u'{' || unit == u'}')
            out += '\\' + QByteArray(1, char(unit));
        else if (unit == u'\t')
            out += "\\tab ";
        else if (character == QChar::LineSeparator || unit == u'\n')
            out += "\\line ";
        else if (unit >= 0x20 && unit < 0x7F)
            out += char(unit);
        else if (unit >= 0x80)
            // Signed, and with a stand-in for readers that know no Unicode.
            out += "\\u" + QByteArray::number(qint16(unit)) + '?';
    }
    return out;
}

QByteArray paragraph(const QTextBlock& block) {
    QByteArray out;
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        const bool isBold = fragment.charFormat().fontWeight() >= QFont::Bold;
        out += isBold ? "{\\b " + spelled(fragment.text()) + '}' : spelled(fragment.text());
    }
    return out;
}

QByteArray cell(const QTextTableCell& cell) {
    QByteArray out;
    for (auto block = cell.begin(); !block.atEnd(); ++block) {
        if (!out.isEmpty())
            out += "\\line ";
        out += paragraph(block.currentBlock());
    }
    return out + "\\cell ";
}

QByteArray table(const QTextTable& table) {
    QByteArray out;
    for (int row = 0; row < table.rows(); ++row) {
        out += "\\trowd";
        for (int column = 1; column <= table.columns(); ++column)
            out += "\\cellx" + QByteArray::number(column * kCellWidth);
        out += "\n\\pard\\intbl ";
        for (int column = 0; column < table.columns(); ++column)
            out += cell(table.cellAt(row, column));
        out += "\\row\n";
    }
    return out + "\\pard\n";
}

} // namespace

QByteArray rtf(const QTextDocument& document) {
    QByteArray out = "{\\rtf1\\ansi\\uc1\\deff0{\\fonttbl{\\f0\\fswiss Helvetica;}}\\f0\n";
    const QTextFrame* root = document.rootFrame();
    for (auto part = root->begin(); !part.atEnd(); ++part) {
        if (const auto* inner = qobject_cast<QTextTable*>(part.currentFrame()))
            out += table(*inner);
        else if (part.currentBlock().isValid() && !part.currentBlock().text().isEmpty())
            out += paragraph(part.currentBlock()) + "\\par\n";
    }
    return out + '}';
}
