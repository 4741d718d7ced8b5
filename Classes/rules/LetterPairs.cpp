// SPDX-License-Identifier: MIT
#include "Classes/rules/LetterPairs.h"

namespace {

// Absent for letters that become several when their case is ignored, because not everybody agrees on these, and for
// halves of letters.
std::optional<QChar> folded(QChar letter) {
    const QString text = QString(letter).toCaseFolded();
    return text.size() == 1 && !letter.isSurrogate() ? std::optional(text.front()) : std::nullopt;
}

} // namespace

LetterPairs LetterPairs::of(const QString& text) {
    LetterPairs pairs;
    const QString all = text.toCaseFolded();
    for (qsizetype i = 1; i < all.size(); ++i)
        pairs.add(all[i - 1], all[i]);
    return pairs;
}

LetterPairs LetterPairs::neededBy(const QString& part) {
    LetterPairs pairs;
    for (qsizetype i = 1; i < part.size(); ++i) {
        const auto first = folded(part[i - 1]);
        const auto second = folded(part[i]);
        if (first && second)
            pairs.add(*first, *second);
    }
    return pairs;
}

void LetterPairs::add(QChar first, QChar second) {
    const unsigned place = (first.unicode() * 37U + second.unicode()) % 251;
    m_bits[place / 64] |= std::uint64_t(1) << (place % 64);
}
