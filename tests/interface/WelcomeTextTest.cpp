// SPDX-License-Identifier: MIT
#include "interface/setup/WelcomeText.h"
#include "interface/setup/InstructionPage.h"

#include <gtest/gtest.h>

namespace {

constexpr int kPageHeight = 400;

WelcomeText::Places places(const QString& first, const QString& second, double scale = 1) {
    return WelcomeText(first, second, scale, Qt::LeftToRight).places(kPageHeight);
}

// On the page, the second below the first.
void expectOnPage(const WelcomeText::Places& places) {
    EXPECT_GE(places.first.top(), 0);
    EXPECT_GT(places.second.top(), places.first.bottom());
    EXPECT_LE(places.second.bottom(), kPageHeight);
}

QString longer(const QString& text, double times) {
    return text.repeated(int(times) + 1).left(int(double(text.size()) * times));
}

const QString kFirst = InstructionPage::welcomeLine(0);
const QString kSecond = InstructionPage::welcomeLine(1);

} // namespace

TEST(WelcomeText, shortLines_areWhereTheyShouldBe) {
    const auto shown = places(QStringLiteral("One."), QStringLiteral("Two."));
    EXPECT_EQ(shown.first.topLeft(), QPointF(60, 400 - 60 - 200));
    EXPECT_EQ(shown.second.topLeft(), QPointF(60, 400 + 75 - 200));
    EXPECT_EQ(shown.first.width(), 325);
    EXPECT_EQ(shown.fontPixels, 24);
    EXPECT_EQ(shown.lineHeight, 1.5);
}

TEST(WelcomeText, theLinesOfTheProgram_areOnThePageInFullSize) {
    const auto shown = places(kFirst, kSecond);
    expectOnPage(shown);
    EXPECT_EQ(shown.fontPixels, 24);
}

TEST(WelcomeText, longerLines_areOnThePage) {
    for (const double times : {1.2, 1.4, 2.0, 3.0}) {
        const auto shown = places(longer(kFirst, times), longer(kSecond, times));
        expectOnPage(shown);
        EXPECT_GE(shown.fontPixels, 14) << times;
    }
}

TEST(WelcomeText, aTextHalfAsLongAgain_isNotSmaller) {
    EXPECT_GE(places(longer(kFirst, 1.4), longer(kSecond, 1.4)).fontPixels, 22);
}

TEST(WelcomeText, largeLetters_areAsLargeAsFits) {
    const auto shown = places(kFirst, kSecond, 1.5);
    expectOnPage(shown);
    EXPECT_GT(shown.fontPixels, 24);
    expectOnPage(places(longer(kFirst, 1.4), longer(kSecond, 1.4), 1.5));
    expectOnPage(places(kFirst, kSecond, 3));
}

TEST(WelcomeText, aVeryLongWord_makesTheLettersSmallerSoThatItFits) {
    const QString word = QStringLiteral("Zugriffsberechtigungserteilung");
    const auto shown = places(word + u' ' + kFirst, kSecond);
    expectOnPage(shown);
    EXPECT_LT(shown.fontPixels, 24);
}

TEST(WelcomeText, textWithoutEnd_comesToAnEnd) {
    EXPECT_EQ(places(QString(20000, u'w'), QString()).fontPixels, 11);
    EXPECT_EQ(places(QString(), QString()).fontPixels, 24);
}
