// SPDX-License-Identifier: MIT
#include "platform/x11/X11Text.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QString compound(const QByteArray& bytes) {
    return x11Text(bytes, X11Encoding::CompoundText);
}

TEST(X11Text, closingZeros_areNoText) {
    EXPECT_EQ(x11Text(QByteArray("a\0\0", 3), X11Encoding::Utf8), QStringLiteral("a"));
    EXPECT_EQ(x11Text(QByteArray("\0", 1), X11Encoding::Latin1), QString());
}

TEST(X11Text, compoundText_beginsAsLatin1) {
    EXPECT_EQ(compound("caf\xe9"), QStringLiteral("café"));
}

TEST(X11Text, compoundText_switchesToUtf8AndBack) {
    EXPECT_EQ(compound("\x1b%G\xe2\x82\xac\x1b%@ \xe9"), QStringLiteral("€ é"));
}

TEST(X11Text, compoundTextOfAnotherSet_keepsWhatIsAscii) {
    EXPECT_EQ(compound("a\x1b-B\xb1 b\x1b-A\xe9"), QStringLiteral("a\uFFFD bé"));
    EXPECT_EQ(compound("\x1b$)A\xb0\xa1!"), QStringLiteral("\uFFFD\uFFFD!"));
}

TEST(X11Text, compoundTextCutInTheMiddle_endsThere) {
    EXPECT_EQ(compound("a\x1b"), QStringLiteral("a"));
    EXPECT_EQ(compound("a\x1b%"), QStringLiteral("a"));
    EXPECT_EQ(compound("a\x1b%G\xe2\x82"), QStringLiteral("a\uFFFD\uFFFD"));
}

TEST(X11Text, anyBytes_giveCleanText) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes;
        for (unsigned length = random() % 40; length > 0; --length)
            bytes += random() % 4 == 0 ? "\x1b%G-A$)@"[random() % 9] : char(random());
        for (const auto encoding : {X11Encoding::Latin1, X11Encoding::Utf8, X11Encoding::CompoundText}) {
            const QString text = x11Text(bytes, encoding);
            for (const QChar character : text)
                EXPECT_GE(character.unicode(), 0x20) << bytes.toHex().constData();
        }
    }
}

} // namespace
