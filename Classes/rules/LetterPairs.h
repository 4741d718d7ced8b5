// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

// Which pairs of neighbouring letters a text has, whatever their case. A text has all pairs of its parts, so most texts
// that a part is not in are told from others by four numbers, a hundred times as fast as by looking.
class LetterPairs {
public:
    // Of a text that is searched.
    static LetterPairs of(const QString& text);
    // Of a part that is searched for: those that every text has that has the part.
    static LetterPairs neededBy(const QString& part);

    // False: surely not.
    bool mayHave(const LetterPairs& part) const {
        for (std::size_t i = 0; i < m_bits.size(); ++i)
            if ((part.m_bits[i] & ~m_bits[i]) != 0)
                return false;
        return true;
    }

private:
    void add(QChar first, QChar second);

    // Some pairs share a bit.
    std::array<std::uint64_t, 4> m_bits{};
};
