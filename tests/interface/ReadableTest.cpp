// SPDX-License-Identifier: MIT
// Whether what is drawn can be read and seen: measured from pictures, in light, in dark and in high contrast.
#include "interface/shell/Contrast.h"
#include "interface/shell/ReadableGreys.h"
#include "tests/interface/ProjectDesk.h"
#include "tests/interface/SetupDesk.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace {

QPalette light() {
    return QApplication::style()->standardPalette();
}

QPalette dark() {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::WindowText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x23));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    dark.setColor(QPalette::Text, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::PlaceholderText, QColor(0x7c, 0x80, 0x86));
    dark.setColor(QPalette::Button, QColor(0x35, 0x38, 0x3b));
    dark.setColor(QPalette::ButtonText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

QPalette highContrast() {
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black,
                     Qt::black);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

// The contrast of what stands out most in a picture, to the colour at its corner.
double contrastIn(const QImage& picture) {
    const QColor ground = picture.pixelColor(1, 1);
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, Contrast::of(picture.pixelColor(x, y), ground));
    return most;
}

struct Look {
    const char* name;
    QPalette (*palette)();
};

struct ReadableTest : testing::TestWithParam<Look> {
    ReadableTest() { QApplication::setPalette(GetParam().palette()); }
    ~ReadableTest() override { QApplication::setPalette(QPalette()); }

    static double contrastOf(QWidget& widget) {
        // Large, because the thin strokes of small letters are never drawn in their full colour.
        QFont large = widget.font();
        large.setPixelSize(40);
        widget.setFont(large);
        const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
        return contrastIn(widget.window()->grab(place).toImage());
    }
};

INSTANTIATE_TEST_SUITE_P(Each, ReadableTest,
                         testing::Values(Look{"light", light}, Look{"dark", dark},
                                         Look{"contrast", highContrast}),
                         [](const auto& look) { return std::string(look.param.name); });

} // namespace

TEST_P(ReadableTest, theGreyTextsOfTheWindow_canBeRead) {
    const ReadableGreys greys;
    ProjectDesk desk;
    desk.controller.window().resize(1200, 700);
    desk.show();
    // The invitation.
    QFont large = desk.table().font();
    large.setPixelSize(40);
    desk.table().setFont(large);
    desk.settle();
    EXPECT_GE(contrastIn(desk.table().viewport()->grab().toImage()), Contrast::kOfTexts);
    for (const char* grey : {"cutOffCaption", "timeSumCaption"}) {
        auto* label = desk.controller.window().findChild<QLabel*>(QLatin1String(grey));
        ASSERT_TRUE(label->isVisible()) << grey;
        EXPECT_GE(contrastOf(*label), Contrast::kOfTexts) << grey;
    }
}

TEST_P(ReadableTest, theExplanationsOfThePreferences_canBeRead) {
    const ReadableGreys greys;
    SetupDesk desk;
    desk.setup.showPrefWindow();
    int measured = 0;
    for (const char* tab : {"Archive", "History"}) {
        desk.setup.prefWindow().selectTab(QLatin1String(tab));
        desk.settle();
        for (auto* label : desk.setup.prefWindow().findChildren<QLabel*>())
            if (label->isVisible() && label->foregroundRole() == QPalette::PlaceholderText) {
                EXPECT_GE(contrastOf(*label), Contrast::kOfTexts) << qPrintable(label->text());
                ++measured;
            }
    }
    EXPECT_GT(measured, 1);
}

TEST_P(ReadableTest, theDimmedPartOfAName_canBeRead) {
    ProjectDesk desk;
    desk.account("Mail", 60);
    desk.show();
    desk.model().setData(desk.row("Mail"), QStringLiteral("."));
    QFont large = desk.table().font();
    large.setPixelSize(40);
    desk.table().setFont(large);
    desk.table().clearSelection();
    desk.settle();
    QRect cell = desk.table().visualRect(desk.row("."));
    // Right of the dot there is only the name that it replaces.
    cell.setLeft(cell.left() + desk.table().fontMetrics().horizontalAdvance(QStringLiteral(". ")) + 24);
    EXPECT_GE(contrastIn(desk.table().viewport()->grab(cell).toImage()), Contrast::kOfTexts);
}

TEST_P(ReadableTest, marks_canBeSeen) {
    ProjectDesk desk;
    desk.mailNotesAndPaint();
    for (int tag = 1; tag <= 6; ++tag) {
        desk.addProject("P", {});
        desk.projects().setSelectedColorTag(*desk.projects().projects().back(), tag);
    }
    desk.show();
    for (int row = 1; row <= 6; ++row) {
        const QModelIndex index = desk.at(row);
        const TKTableLabelCell cell = desk.sidebar().dataCell(index);
        const QRect frame = desk.sidebar().visualRect(index);
        const auto places = cell.layout(frame, false);
        ASSERT_FALSE(places.dots.empty());
        const QRect dot = places.dots.front().toAlignedRect().adjusted(-2, -2, 2, 2);
        EXPECT_GE(contrastIn(desk.sidebar().viewport()->grab(dot).toImage()), Contrast::kOfMarks)
            << "colour " << row;
        const QRect icon = places.icon.toAlignedRect().adjusted(-2, -2, 2, 2);
        EXPECT_GE(contrastIn(desk.sidebar().viewport()->grab(icon).toImage()), Contrast::kOfMarks) << "icon";
    }
    desk.table().expandAll();
    desk.settle();
    const QModelIndex window = desk.model().index(0, 0, desk.model().index(0, 0));
    const auto places = desk.table().dataCell(window).layout(desk.table().visualRect(window), true);
    EXPECT_GE(contrastIn(desk.table()
                             .viewport()
                             ->grab(places.windowIcon.toAlignedRect().adjusted(-2, -2, 2, 2))
                             .toImage()),
              Contrast::kOfMarks);
}

TEST(ReadableGreysTest, aPaleGrey_becomesAsDarkAsNeededAndNoDarker) {
    const QColor grey = Contrast::readable(QColor(0, 0, 0, 60), Qt::black, Qt::white);
    EXPECT_GE(Contrast::of(grey, Qt::white), 4.5);
    EXPECT_LE(Contrast::of(grey, Qt::white), 5.2);
    EXPECT_EQ(Contrast::readable(QColor(80, 80, 80), Qt::black, Qt::white), QColor(80, 80, 80))
        << "good already";
    EXPECT_NEAR(Contrast::of(Qt::black, Qt::white), 21, 0.01);
}

TEST(ReadableGreysTest, anotherPalette_isMadeReadableAsWell) {
    const ReadableGreys greys;
    for (const auto palette : {light, dark, highContrast}) {
        QApplication::setPalette(palette());
        QCoreApplication::processEvents();
        const QPalette now = QApplication::palette();
        EXPECT_GE(
            Contrast::of(Contrast::over(now.color(QPalette::PlaceholderText), now.color(QPalette::Window)),
                         now.color(QPalette::Window)),
            4.5);
    }
    QApplication::setPalette(QPalette());
}
