// SPDX-License-Identifier: MIT
// The small views of the main window that do one thing each.
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/mainwindow/TKConstrainedSplitView.h"
#include "tests/interface/ProjectDesk.h"

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <gtest/gtest.h>

namespace {

struct SmallViewsTest : testing::Test, ProjectDesk {
    SmallViewsTest() {
        mailNotesAndPaint();
        show();
    }

    TKConstrainedSplitView& splitView() {
        return *controller.window().findChild<TKConstrainedSplitView*>(QStringLiteral("splitView"));
    }

    // Moves the divider by this many pixels.
    void pull(int pixels) {
        QWidget* divider = splitView().handle(1);
        const QPoint from = divider->rect().center();
        QTest::mousePress(divider, Qt::LeftButton, {}, from);
        QTest::mouseMove(divider, from + QPoint(pixels, 0));
        QTest::mouseRelease(divider, Qt::LeftButton, {}, from + QPoint(pixels, 0));
        settle();
    }
};

} // namespace

TEST(TKConstrainedSplitView, theDivider_staysAwayFromBothEdges) {
    EXPECT_EQ(TKConstrainedSplitView::constrainSplitPosition(100, 800), 165);
    EXPECT_EQ(TKConstrainedSplitView::constrainSplitPosition(165, 800), 165);
    EXPECT_EQ(TKConstrainedSplitView::constrainSplitPosition(300, 800), 300);
    EXPECT_EQ(TKConstrainedSplitView::constrainSplitPosition(700, 800), 635);
    for (const int proposed : {0, 100, 150, 165, 200, 299})
        EXPECT_EQ(TKConstrainedSplitView::constrainSplitPosition(proposed, 300), 165) << proposed;
}

TEST(TKConstrainedSplitView, aPaneThatNeedsMoreRoom_keepsIt) {
    TKConstrainedSplitView view;
    view.addWidget(new QWidget);
    view.addWidget(new QWidget);
    view.widget(1)->setMinimumWidth(400);
    view.resize(480, 100);
    view.show();
    QWidget* divider = view.handle(1);
    const QPoint from = divider->rect().center();
    for (const int pull : {30, -30, 300}) {
        QTest::mousePress(divider, Qt::LeftButton, {}, from);
        QTest::mouseMove(divider, from + QPoint(pull, 0));
        QTest::mouseRelease(divider, Qt::LeftButton, {}, from + QPoint(pull, 0));
        EXPECT_EQ(view.sizes().last(), 400) << pull;
    }
}

TEST_F(SmallViewsTest, theDividerPulledToTheLeft_leavesTheSidebarItsWidth) {
    pull(-1000);
    EXPECT_EQ(splitView().sizes().first(), 165);
}

TEST_F(SmallViewsTest, aWiderWindow_widensTheTimersAlone) {
    const int sidebar = splitView().sizes().first();
    const int timers = splitView().sizes().last();
    controller.window().resize(controller.window().size() + QSize(150, 0));
    settle();
    EXPECT_EQ(splitView().sizes().first(), sidebar);
    EXPECT_EQ(splitView().sizes().last(), timers + 150);
}

TEST_F(SmallViewsTest, aClickOnTheSum_sumsEverythingAgain) {
    select({row("Paint")});
    EXPECT_EQ(str(sumShown()), "00:00:30");
    QTest::mouseClick(controller.window().findChild<QLabel*>(QStringLiteral("timeSum")), Qt::LeftButton);
    EXPECT_TRUE(table().selectedRows().isEmpty());
    EXPECT_EQ(str(sumShown()), "00:03:10");
}

TEST_F(SmallViewsTest, aPressOnTheWordBesideTheSum_copiesTheSumInWords) {
    select({row("Paint")});
    auto* word = controller.window().findChild<QLabel*>(QStringLiteral("timeSumCaption"));
    EXPECT_EQ(word->textInteractionFlags() & Qt::TextSelectableByMouse, Qt::NoTextInteraction);
    QTest::mousePress(word, Qt::LeftButton);
    EXPECT_EQ(str(QApplication::clipboard()->text()), "1 minute");
}

TEST_F(SmallViewsTest, theOtherButtons_doNothingToTheSum) {
    select({row("Paint")});
    QApplication::clipboard()->setText(QStringLiteral("mine"));
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(controller.window().findChild<QLabel*>(QStringLiteral("timeSumCaption")), button);
        QTest::mouseClick(controller.window().findChild<QLabel*>(QStringLiteral("timeSum")), button);
    }
    EXPECT_EQ(str(QApplication::clipboard()->text()), "mine");
    EXPECT_EQ(str(sumShown()), "00:00:30");
}

TEST_F(SmallViewsTest, aDesktopThatDoesNotTell_isExplainedAboveTheTimersUntilItDoes) {
    const ObstacleBar& bar = controller.window().obstacleBar();
    EXPECT_FALSE(bar.isVisible());
    fakes.frontApplication.obstacleText = QStringLiteral("This desktop does not tell. Ask it to.");
    controller.refreshTimeSum();
    EXPECT_TRUE(bar.isVisible());
    const auto* text = bar.findChild<QLabel*>(QStringLiteral("obstacleText"));
    EXPECT_EQ(str(text->text()), "This desktop does not tell. Ask it to.");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(const_cast<QLabel*>(text))->text(QAccessible::Name),
              text->text());
    fakes.frontApplication.obstacleText.clear();
    controller.refreshTimeSum();
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(SmallViewsTest, whereAnObstacleCanBeRemoved_aButtonBesideItDoesSo) {
    ObstacleBar& bar = controller.window().obstacleBar();
    fakes.frontApplication.obstacleText = QStringLiteral("No.");
    controller.refreshTimeSum();
    auto* button = bar.findChild<QPushButton*>(QStringLiteral("obstacleRemedy"));
    EXPECT_FALSE(button->isVisible());
    int asked = 0;
    QObject::connect(&bar, &ObstacleBar::remedyWanted, &bar, [&] {
        ++asked;
        bar.offerRemedy(false);
    });
    bar.offerRemedy(true);
    EXPECT_TRUE(button->isVisible());
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(button->isVisible());
}

TEST_F(SmallViewsTest, anObstacleThatGoesWhilePaused_isNotSpokenOfAnyMore) {
    fakes.frontApplication.obstacleText = QStringLiteral("Not yet.");
    controller.refreshTimeSum();
    fakes.frontApplication.obstacleText.clear();
    fakes.runLoop.advance(std::chrono::seconds(1));
    EXPECT_FALSE(controller.window().obstacleBar().isVisible());
    EXPECT_FALSE(controller.timer().isRunning());
}

TEST_F(SmallViewsTest, anObstacleFromTheStart_isExplainedWhenTheWindowIsShown) {
    controller.window().hide();
    fakes.frontApplication.obstacleText = QStringLiteral("No.");
    show();
    EXPECT_TRUE(controller.window().obstacleBar().isVisible());
}
