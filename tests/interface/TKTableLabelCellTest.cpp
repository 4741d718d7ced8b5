// SPDX-License-Identifier: MIT
#include "interface/outline/TKTableLabelCell.h"
#include "interface/outline/CutToWidth.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

constexpr QRectF kFrame(10, 100, 300, 26);

QImage drawn(const TKTableLabelCell& cell, bool isHovered, const QString& text, int dimmedLength = 0,
             Qt::LayoutDirection direction = Qt::LeftToRight) {
    QImage image(QSize(320, 140), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    cell.drawWithFrame(painter, kFrame, isHovered,
                       {.text = text, .dimmedLength = dimmedLength, .font = {}, .color = Qt::black});
    return image;
}

bool isBlank(const QImage& image, const QRectF& rect) {
    const QImage part = image.copy(rect.toAlignedRect());
    QImage blank = part;
    blank.fill(Qt::white);
    return part == blank;
}

} // namespace

TEST(TKTableLabelCell, aPlainCell_isAllText) {
    const auto layout = TKTableLabelCell().layout(kFrame, true);
    EXPECT_EQ(layout.text, kFrame);
    EXPECT_TRUE(layout.icon.isEmpty() && layout.windowIcon.isEmpty() && layout.mark.isEmpty());
    EXPECT_TRUE(layout.dots.empty());
}

TEST(TKTableLabelCell, aSidebarIcon_standsSixFromTheLeftAndSevenBeforeTheText) {
    TKTableLabelCell cell;
    cell.iconType = TKTableLabelCell::AllTimersIcon;
    const auto layout = cell.layout(kFrame, false);
    EXPECT_EQ(layout.icon, QRectF(16, 105, 16, 16));
    EXPECT_EQ(layout.text, QRectF(39, 100, 271, 26));
}

TEST(TKTableLabelCell, anUnknownIcon_countsAsOneWithoutSize) {
    TKTableLabelCell cell;
    cell.iconType = 3;
    const auto layout = cell.layout(kFrame, false);
    EXPECT_TRUE(layout.icon.isEmpty());
    EXPECT_EQ(layout.text, QRectF(23, 100, 287, 26));
}

TEST(TKTableLabelCell, aWindowIcon_pushesTheTextThreeFurtherThanItNarrowsIt) {
    TKTableLabelCell cell;
    cell.showWindowIcon = true;
    const auto layout = cell.layout(kFrame, false);
    EXPECT_EQ(layout.windowIcon, QRectF(10, 105, 16, 16));
    EXPECT_EQ(layout.text, QRectF(29, 100, 284, 26));
}

TEST(TKTableLabelCell, theFreezeControl_isOfferedOnTheHoveredRowAlone) {
    TKTableLabelCell cell;
    cell.supportsFreeze = true;
    EXPECT_TRUE(cell.layout(kFrame, false).mark.isEmpty());
    EXPECT_EQ(cell.layout(kFrame, true).mark, QRectF(294, 105, 16, 16));
    EXPECT_EQ(cell.layout(kFrame, true).text.width(), 281);
    cell.supportsFreeze = false;
    EXPECT_TRUE(cell.layout(kFrame, true).mark.isEmpty());
}

TEST(TKTableLabelCell, aFrozenTimer_hasItsMarkWhereverThePointerIs) {
    TKTableLabelCell cell;
    cell.isFrozen = true;
    for (const bool isHovered : {false, true})
        EXPECT_EQ(cell.layout(kFrame, isHovered).mark, QRectF(294, 105, 16, 16));
    EXPECT_FALSE(cell.showsFreezeAction(true));
}

TEST(TKTableLabelCell, aRowOfOddHeight_putsTheMarkOnTheLowerPixel) {
    TKTableLabelCell cell;
    cell.isFrozen = true;
    EXPECT_EQ(cell.layout(QRectF(0, 0, 100, 25), false).mark.y(), 5);
}

TEST(TKTableLabelCell, dots_standFromTheRightInAscendingOrder) {
    TKTableLabelCell cell;
    cell.selectedTags = ColorTags{2, 5};
    const auto layout = cell.layout(kFrame, false);
    ASSERT_EQ(layout.dots.size(), 2U);
    EXPECT_EQ(layout.dots[0], QRectF(293, 107, 12, 12));
    EXPECT_EQ(layout.dots[1], QRectF(278, 107, 12, 12));
    EXPECT_EQ(layout.text.width(), 282) << "room for one";
}

TEST(TKTableLabelCell, dotsOfAFrozenTimer_standLeftOfItsMark) {
    TKTableLabelCell cell;
    cell.isFrozen = true;
    cell.setSelectedTag(1);
    EXPECT_EQ(cell.layout(kFrame, false).dots[0], QRectF(277, 107, 12, 12));
}

TEST(TKTableLabelCell, noLabelAndTagThree_keepNoRoomButLeaveTheFirstPlaceEmpty) {
    TKTableLabelCell cell;
    cell.selectedTags = ColorTags{0, 3};
    const auto layout = cell.layout(kFrame, false);
    EXPECT_EQ(layout.text, kFrame);
    const QImage image = drawn(cell, false, {});
    EXPECT_TRUE(isBlank(image, layout.dots[0]));
    EXPECT_FALSE(isBlank(image, layout.dots[1]));
    EXPECT_EQ(layout.dots[0].x() - layout.dots[1].x(), 15);
}

TEST(TKTableLabelCell, anEmptySetOfTags_keepsRoomForADot) {
    TKTableLabelCell cell;
    cell.selectedTags = ColorTags();
    EXPECT_EQ(cell.layout(kFrame, false).text.width(), 282);
}

TEST(TKTableLabelCell, aTagBeyondSix_isNotSeen) {
    TKTableLabelCell cell;
    cell.selectedTags = ColorTags{7};
    EXPECT_TRUE(isBlank(drawn(cell, false, {}), kFrame));
}

TEST(TKTableLabelCell, everyPicture_isDrawnWhereItsPlaceIs) {
    TKTableLabelCell cell;
    cell.iconType = TKTableLabelCell::ProjectIcon;
    cell.showWindowIcon = true;
    cell.supportsFreeze = true;
    cell.setSelectedTag(4);
    const auto layout = cell.layout(kFrame, true);
    const QImage image = drawn(cell, true, {});
    for (const QRectF& place : {layout.icon, layout.windowIcon, layout.mark, layout.dots[0]})
        EXPECT_FALSE(isBlank(image, place));
    EXPECT_TRUE(isBlank(image, layout.text.adjusted(0, 0, -20, 0)));
}

TEST(TKTableLabelCell, fromRightToLeft_everythingIsOnTheOtherSide) {
    TKTableLabelCell cell;
    cell.iconType = TKTableLabelCell::ProjectIcon;
    cell.showWindowIcon = true;
    cell.supportsFreeze = true;
    cell.setSelectedTag(4);
    const auto layout = cell.layout(kFrame, true).mirrored(kFrame);
    EXPECT_EQ(layout.icon, QRectF(288, 105, 16, 16));
    EXPECT_EQ(layout.mark, QRectF(10, 105, 16, 16));
    const QImage image = drawn(cell, true, {}, 0, Qt::RightToLeft);
    for (const QRectF& place : {layout.icon, layout.windowIcon, layout.mark, layout.dots[0]})
        EXPECT_FALSE(isBlank(image, place));
    EXPECT_TRUE(isBlank(image, layout.text.adjusted(20, 0, 0, 0)));
}

TEST(TKTableLabelCell, aNameAndWhatFollowsIt_standTogetherInEitherDirection) {
    const TKTableLabelCell cell;
    const QString text = QStringLiteral("IIII – IIII");
    const int width = QFontMetrics(QFont()).horizontalAdvance(text) + 8;
    const QRectF left(10, 100, width, 26), right(310 - width, 100, width, 26);
    const QImage fromLeft = drawn(cell, false, text, 7);
    const QImage fromRight = drawn(cell, false, text, 7, Qt::RightToLeft);
    EXPECT_FALSE(isBlank(fromLeft, left));
    EXPECT_TRUE(isBlank(fromLeft, QRectF(left.topRight(), kFrame.bottomRight())));
    EXPECT_FALSE(isBlank(fromRight, right));
    EXPECT_TRUE(isBlank(fromRight, QRectF(kFrame.topLeft(), right.bottomLeft())));
}

TEST(TKTableLabelCell, aReplacedName_isLighterThanTheName) {
    const QString text = QStringLiteral("IIII – IIII");
    const TKTableLabelCell cell;
    const QImage dimmed = drawn(cell, false, text, 7);
    const QImage plain = drawn(cell, false, text);
    const auto darkest = [](const QImage& image, int from) {
        int grey = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = from; x < image.width(); ++x)
                grey = std::min(grey, qGray(image.pixel(x, y)));
        return grey;
    };
    const int behind = 12 + QFontMetrics(QFont()).horizontalAdvance(QStringLiteral("IIII "));
    EXPECT_GT(darkest(dimmed, behind), darkest(plain, behind) + 40);
    EXPECT_LT(darkest(dimmed, 0), 60) << "the name itself is not dimmed";
}

TEST(CutToWidth, aTextThatMayBeSeenWhole_staysAsItIs) {
    const QString text(41, u'x');
    EXPECT_TRUE(cutToWidth(text, 10).isSharedWith(text));
}

TEST(CutToWidth, aLongerText_keepsBothEndsAndNoHalfACharacter) {
    EXPECT_EQ(cutToWidth(QString(21, u'a') + QString(21, u'b'), 10),
              QString(20, u'a') + u'\u2026' + QString(20, u'b'));
    const QString smiles = QStringLiteral("😀").repeated(8);
    EXPECT_EQ(cutToWidth(smiles, 1.5), QStringLiteral("😀…😀"));
    EXPECT_EQ(cutToWidth(smiles, -1), QStringLiteral("…"));
}

TEST(TKTableLabelCell, aNameOfManyMillions_isDrawnAtOnce) {
    QElapsedTimer watch;
    watch.start();
    drawn({}, false, QString(12'000'000, u'W'), 1000);
    EXPECT_LT(watch.elapsed(), 2000);
}

TEST(TKTableLabelCell, aPath_isShortenedAtItsBeginning) {
    for (const char* path : {"/home/anna/work/offers/2026/offer.odt", "~/work/ticklog/interface",
                             "anna@desk: ~/work/ticklog", "anna@desk:/srv/www", "file:///home/anna/a.txt"})
        EXPECT_EQ(elisionOf(QString::fromUtf8(path)), Qt::ElideLeft) << path;
    for (const char* title :
         {"Offer 3/2026", "Note: /home is full", "a@b says: /me waves", "offer.odt (~/work)", "~", ""})
        EXPECT_EQ(elisionOf(QString::fromUtf8(title)), Qt::ElideMiddle) << title;
}
