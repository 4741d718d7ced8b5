// SPDX-License-Identifier: MIT
#include "platform/foundation/text/CleanText.h"

#include "tests/fakes/Announcements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(CleanText, ordinaryText_staysAsItIsAndShared) {
    const QString text = QString::fromUtf8("Grüße, 世界 😀 – naïve");
    EXPECT_EQ(cleanText(text), text);
    EXPECT_TRUE(cleanText(text).isSharedWith(text));
}

TEST(CleanText, controlCharactersAndLineBreaks_becomeBlanks) {
    EXPECT_EQ(str(cleanText(u"a\nb\r\nc\td\x1b"
                            "e\x7f"
                            "f"_s)),
              "a b  c d e f");
    EXPECT_EQ(cleanText(u"a"_s + QChar(0x2028) + QChar(0x85) + QChar(0)), u"a   "_s);
}

TEST(CleanText, loneSurrogatesAndNoncharacters_becomeReplacements) {
    const QChar replacement = QChar::ReplacementCharacter;
    EXPECT_EQ(cleanText(QString(QChar(0xD800)) + u"a"), QString(replacement) + u"a");
    EXPECT_EQ(cleanText(u"a"_s + QChar(0xDC00)), u"a"_s + replacement);
    EXPECT_EQ(cleanText(u"a"_s + QChar(0xD83D)), u"a"_s + replacement);
    EXPECT_EQ(cleanText(QString(QChar(0xFFFE)) + QChar(0xFDD0)), QString(2, replacement));
    EXPECT_EQ(cleanText(QString::fromUcs4(U"\U0001FFFFx", 2)), QString(replacement) + u"x");
}

TEST(CleanText, aLongText_isCutButNeverWithinACharacter) {
    EXPECT_EQ(cleanText(QString(10000, u'x')).size(), kLongestText);
    EXPECT_EQ(cleanText(QString(kLongestText, u'x')).size(), kLongestText);
    const QString smile = u"😀"_s;
    EXPECT_EQ(cleanText(QString(kLongestText - 1, u'x') + smile), QString(kLongestText - 1, u'x'));
}

TEST(CleanText, invalidUtf8_becomesReplacements) {
    EXPECT_EQ(cleanTextFromUtf8("a\xff"
                                "b"),
              u"a\uFFFDb"_s);
    EXPECT_EQ(cleanTextFromUtf8("gr\xc3\xbc\xc3\x9f"
                                "e"),
              u"grüße"_s);
    EXPECT_EQ(cleanTextFromUtf8(""), QString());
    EXPECT_LE(cleanTextFromUtf8(QByteArray(1'000'000, '\xff')).size(), kLongestText);
}

TEST(CleanText, cleanedText_isClean) {
    QString hostile;
    for (int unit = 0; unit <= 0xFFFF; unit += 7)
        hostile += QChar(unit);
    const QString once = cleanText(hostile.first(4000));
    EXPECT_EQ(cleanText(once), once);
}

} // namespace
