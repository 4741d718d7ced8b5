// SPDX-License-Identifier: MIT
// The colour labels: their colours, their buttons and the menu they are chosen in.
#include "interface/labels/ColorDot.h"
#include "interface/labels/TKLabelButton.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/labels/TKLabelViewController.h"
#include "interface/labels/TKProjectFooterBox.h"
#include "tests/interface/Desk.h"

#include <QEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct TKLabelTest : testing::Test {
    TKLabelTest() { row.setSelectedTag(0); }

    void open() {
        menu.popup(QPoint(10, 10));
        QCoreApplication::processEvents();
    }

    TKLabelButton& button(std::size_t tag) { return *row.labels()[tag]; }

    void hover(TKLabelButton& button) {
        QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(&button, &event);
    }

    // How dark the frame's upper side is on white, 0 to 1.
    static double frameOf(TKLabelButton& button) {
        QImage image(button.size(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        button.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return 1 - image.pixelColor(button.width() / 2, 0).lightnessF();
    }

    std::vector<int> framed() {
        std::vector<int> tags;
        for (const TKLabelButton* label : row.labels())
            if (label->selectedColor())
                tags.push_back(label->colorTag());
        return tags;
    }

    QColor labelColor() {
        const auto* label = row.findChild<QLabel*>(QStringLiteral("mainLabel"));
        return label->palette().color(label->foregroundRole());
    }

    QMenu menu;
    TKLabelViewController& row = *new TKLabelViewController(menu, [this](int tag) {
        stored << tag;
        wasMenuOpen = menu.isVisible();
    });
    QList<int> stored;
    bool wasMenuOpen = false;
};

} // namespace

TEST(TKLabelColorListTest, theColours_areThoseOfTheirTags) {
    const TKLabelColorList& list = TKLabelColorList::sharedColorList();
    EXPECT_EQ(list.colorForTag(1), QColor::fromRgbF(1.0F, 0.25F, 0.25F));
    EXPECT_EQ(list.colorForTag(3), QColor::fromRgbF(0.95F, 0.95F, 0.0F));
    EXPECT_EQ(list.colorForTag(6), QColor::fromRgbF(0.85F, 0.5F, 0.85F));
    for (const int tag : {0, 7, 1000, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(list.colorForTag(tag).alphaF(), 0) << tag;
    EXPECT_EQ(&list, &TKLabelColorList::sharedColorList());
}

TEST(ColorDotTest, aDot_isDarkerAtTheBottomAndClearOutside) {
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawColorDot(painter, QRectF(2, 2, 16, 16), QColor::fromRgbF(1.0F, 0.75F, 0.0F), 1);
    painter.end();
    EXPECT_NEAR(image.pixelColor(10, 3).redF(), 0.97, 0.05);
    EXPECT_NEAR(image.pixelColor(10, 16).redF(), 0.53, 0.05);
    EXPECT_NEAR(image.pixelColor(10, 16).greenF(), 0.28, 0.05);
    EXPECT_EQ(image.pixelColor(2, 2).alpha(), 0);
    EXPECT_EQ(image.pixelColor(0, 10).alpha(), 0);
}

TEST(ColorDotTest, aWeakDot_letsTheGroundShine) {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawColorDot(painter, QRectF(0, 0, 16, 16), Qt::red, 0.5);
    painter.end();
    EXPECT_NEAR(image.pixelColor(8, 8).alphaF(), 0.5, 0.02);
}

TEST_F(TKLabelTest, theButtons_haveTheTagsInOrder) {
    for (int tag = 0; tag < 7; ++tag)
        EXPECT_EQ(button(std::size_t(tag)).colorTag(), tag);
}

TEST_F(TKLabelTest, withoutAProject_nothingCanBeChosenAndTheLabelIsStrong) {
    row.setSelectedTag(TKLabelViewController::kNoProject);
    for (const TKLabelButton* label : row.labels())
        EXPECT_FALSE(label->isEnabled());
    EXPECT_TRUE(framed().empty());
    EXPECT_EQ(labelColor(), row.palette().color(QPalette::WindowText));
    button(2).setSelectedColor(true);
    hover(button(2));
    EXPECT_FALSE(button(2).selectedColor());
    EXPECT_FALSE(button(2).isMouseOver());
    EXPECT_NEAR(frameOf(button(2)), 0, 0.01);
}

TEST_F(TKLabelTest, aProjectsTag_isFramedAndTheLabelIsPale) {
    row.setSelectedTag(3);
    EXPECT_EQ(framed(), std::vector<int>{3});
    EXPECT_EQ(labelColor(), row.palette().color(QPalette::PlaceholderText));
    row.setSelectedTag(9);
    EXPECT_TRUE(framed().empty());
}

TEST_F(TKLabelTest, theSelectedFrame_winsOverThePointers) {
    row.setSelectedTag(0);
    EXPECT_NEAR(frameOf(button(4)), 0, 0.01);
    hover(button(4));
    const double hovered = frameOf(button(4));
    button(4).setSelectedColor(true);
    const double selected = frameOf(button(4));
    EXPECT_GT(hovered, selected + 0.1);
    EXPECT_GT(selected, 0.1);
}

TEST_F(TKLabelTest, disabling_goesBackToIdle) {
    row.setSelectedTag(4);
    hover(button(4));
    button(4).setEnabled(false);
    EXPECT_FALSE(button(4).isMouseOver());
    EXPECT_FALSE(button(4).selectedColor());
    button(4).setEnabled(true);
    EXPECT_FALSE(button(4).selectedColor());
}

TEST_F(TKLabelTest, aClick_closesTheMenuBeforeTheTagIsStored) {
    open();
    ASSERT_TRUE(menu.isVisible());
    QTest::mouseClick(&button(5), Qt::LeftButton);
    EXPECT_EQ(stored, QList<int>{5});
    EXPECT_FALSE(wasMenuOpen);
    EXPECT_EQ(framed(), std::vector<int>{5});
}

TEST_F(TKLabelTest, aDisabledButton_cannotBeChosen) {
    row.setSelectedTag(TKLabelViewController::kNoProject);
    open();
    QTest::mouseClick(&button(5), Qt::LeftButton);
    EXPECT_TRUE(stored.isEmpty());
}

TEST_F(TKLabelTest, theKeyboard_walksAlongTheRowAndChooses) {
    row.setSelectedTag(2);
    open();
    row.setFocus();
    EXPECT_TRUE(button(2).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(button(3).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(button(1).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(stored, QList<int>{1});
}

TEST_F(TKLabelTest, everyColour_hasANameThatCanBeRead) {
    QStringList names;
    for (const TKLabelButton* label : row.labels())
        names << label->accessibleName();
    EXPECT_EQ(names.removeDuplicates(), 0);
    EXPECT_EQ(names.first(), QStringLiteral("No Label"));
}

TEST(TKProjectFooterBoxTest, theBox_followsTheOutlinesBackground) {
    QWidget window;
    auto* outline = new QWidget(&window);
    auto* box = new TKProjectFooterBox(*outline);
    box->setParent(&window);
    QPalette palette = outline->palette();
    palette.setColor(QPalette::Base, Qt::darkGreen);
    outline->setPalette(palette);
    EXPECT_EQ(box->fillColor(), QColor(Qt::darkGreen));
}

TEST_F(TKLabelTest, theOtherButtons_chooseNothing) {
    open();
    // A menu that opens under the pointer is closed by a click there, so the pointer is elsewhere first.
    QTest::mouseMove(&button(5));
    menu.close();
    open();
    QTest::mouseClick(&button(2), Qt::RightButton);
    QTest::mouseClick(&button(2), Qt::MiddleButton);
    EXPECT_TRUE(stored.isEmpty());
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(TKLabelTest, theFrame_followsTheColourAndNotTheFocusOfBefore) {
    open();
    menu.activateWindow();
    button(2).setFocus();
    ASSERT_TRUE(button(2).hasFocus());
    QTest::keyClick(&button(2), Qt::Key_Return);
    row.setSelectedTag(5);
    open();
    EXPECT_EQ(frameOf(button(2)), 0);
    EXPECT_GT(frameOf(button(5)), 0);
    row.setFocus();
    ASSERT_TRUE(button(5).hasFocus());
    row.setSelectedTag(1);
    EXPECT_TRUE(button(1).hasFocus());
    EXPECT_EQ(frameOf(button(5)), 0);
}
