// SPDX-License-Identifier: MIT
#include "platform/foundation/text/CleanText.h"

namespace {

bool isNoncharacter(char32_t codePoint) {
    return (codePoint & 0xFFFE) == 0xFFFE || (codePoint >= 0xFDD0 && codePoint <= 0xFDEF);
}

bool isControl(char16_t unit) {
    // The separators of lines and paragraphs are line breaks too.
    return unit < 0x20 || (unit >= 0x7F && unit <= 0x9F) || unit == 0x2028 || unit == 0x2029;
}

} // namespace

QString cleanText(QString text) {
    if (text.size() > kLongestText) {
        text.truncate(kLongestText);
        if (text.back().isHighSurrogate())
            text.chop(1);
    }
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text.at(i).unicode();
        // Most texts need no change, and an unchanged text stays shared.
        if (unit >= 0x20 && unit < 0x7F)
            continue;
        if (isControl(unit)) {
            text[i] = u' ';
        } else if (QChar::isHighSurrogate(unit) && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            if (isNoncharacter(QChar::surrogateToUcs4(unit, text.at(i + 1).unicode())))
                text.replace(i, 2, QChar::ReplacementCharacter);
            else
                ++i;
        } else if (QChar::isSurrogate(unit) || isNoncharacter(unit)) {
            text[i] = QChar::ReplacementCharacter;
        }
    }
    return text;
}

QString cleanTextFromUtf8(QByteArrayView bytes) {
    // A character has at most four bytes, so what is cut here could not be kept anyway.
    return cleanText(QString::fromUtf8(bytes.first(qMin(bytes.size(), 4 * kLongestText + 4))));
}
