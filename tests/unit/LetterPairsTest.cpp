// SPDX-License-Identifier: MIT
#include "Classes/rules/LetterPairs.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <random>

namespace {

bool mayHave(const QString& text, const QString& part) {
    return LetterPairs::of(text).mayHave(LetterPairs::neededBy(part));
}

TEST(LetterPairs, tellTextsFromThoseThatHaveNotThePart) {
    const QString title = QStringLiteral("Quarterly report for Meier – LibreOffice Writer");
    EXPECT_TRUE(mayHave(title, QStringLiteral("MEIER")));
    EXPECT_FALSE(mayHave(title, QStringLiteral("Huber & Sons")));
    EXPECT_FALSE(mayHave(QString(), QStringLiteral("ab")));
    EXPECT_TRUE(mayHave(QString(), QString()));
}

// Letters whose case is odd: of two lengths, of three forms, of several languages' minds, and halves.
TEST(LetterPairs, neverDenyAPartThatIsThere) {
    const std::u32string letters =
        U"aAsSſkK\u212AßẞiIİıΣσςåÅ\u212BﬁᾈᾀŉǰДдß日\U00010400\U00010428🙂 ";
    std::mt19937 random(20261122);
    const auto textOf = [&](int most) {
        QString text;
        for (int i = std::uniform_int_distribution<int>(1, most)(random); i > 0; --i) {
            const char32_t letter =
                letters[std::uniform_int_distribution<std::size_t>(0, letters.size() - 1)(random)];
            text += QString::fromUcs4(&letter, 1);
        }
        return text;
    };
    int there = 0;
    for (int i = 0; i < 20'000; ++i) {
        const QString text = textOf(8);
        const QString part = textOf(3);
        const QRegularExpression expression(QRegularExpression::escape(part),
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::UseUnicodePropertiesOption);
        if (!expression.match(text).hasMatch())
            continue;
        ++there;
        ASSERT_TRUE(mayHave(text, part)) << qPrintable(text) << " has " << qPrintable(part);
    }
    EXPECT_GT(there, 1000);
}

} // namespace
