// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>

// A command's text as a button or a tab has it: without the mnemonic, in brackets as in Japanese or not, and without
// the ellipsis.
inline QString buttonText(const QString& command) {
    static const QRegularExpression inBrackets(QStringLiteral("\\(&.\\)"));
    return QString(command).remove(inBrackets).remove(u'&').remove(u'…');
}
