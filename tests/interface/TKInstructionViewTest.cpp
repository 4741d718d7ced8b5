// SPDX-License-Identifier: MIT
// The instructions on how to grant trust.
#include "interface/setup/TKInstructionView.h"
#include "interface/setup/ImageView.h"
#include "interface/setup/TKInstructionStepView.h"
#include "interface/shell/Images.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QImage>
#include <QProxyStyle>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr QRect kFrame(0, 0, 640, 400);

// A style that says whether the user wants things to move.
class Style : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_Widget_Animation_Duration)
            return duration;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }

    int duration = 200;
};

struct TKInstructionViewTest : testing::Test {
    TKInstructionViewTest() {
        view->setStyle(&style);
        view->resize(640, 628);
        view->show();
    }

    ~TKInstructionViewTest() override { view.reset(); }

    QVariantAnimation& turn() { return *view->findChild<QVariantAnimation*>(QStringLiteral("turn")); }

    bool isTurning() { return turn().state() != QVariantAnimation::Stopped; }

    // Moves to this many milliseconds into the turn. Independent of the wall clock.
    void at(int time) {
        if (!isTurning())
            throw std::logic_error("no page is being turned");
        turn().pause();
        turn().setCurrentTime(time);
    }

    // Completes the turn that is under way.
    void finishTurn() { at(TKInstructionView::kTurnMs); }

    // The pages that are turned until everything rests.
    std::vector<int> pages() {
        std::vector<int> shown;
        while (isTurning()) {
            shown.push_back(view->lastStepNumber());
            finishTurn();
        }
        return shown;
    }

    TKInstructionStepView& row(int step) { return *view->stepViews()[std::size_t(step - 1)]; }

    std::vector<int> activeRows() {
        std::vector<int> active;
        for (const TKInstructionStepView* row : view->stepViews())
            if (row->isActive())
                active.push_back(row->stepNumber());
        return active;
    }

    void click() { QTest::mouseClick(view.get(), Qt::LeftButton, {}, QPoint(320, 200)); }

    void click(int step) { QTest::mousePress(&row(step), Qt::LeftButton); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(view.get(), key, modifiers);
    }

    void goTo(int step) {
        view->setToStepNumber(step);
        pages();
    }

    Style style;
    std::unique_ptr<TKInstructionView> view = std::make_unique<TKInstructionView>(kFrame);
};

using Steps = std::vector<int>;

} // namespace

TEST_F(TKInstructionViewTest, atFirst_theWelcomePageIsThereAndNoRowIsActive) {
    EXPECT_EQ(view->currentStep(), 0);
    EXPECT_EQ(view->lastStepNumber(), 0);
    EXPECT_EQ(view->currentLayer().number(), 0);
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(activeRows(), Steps{});
    EXPECT_EQ(view->currentLayerFrame(), QRectF(0, 0, 640, 400));
    EXPECT_EQ(view->backgroundContents(), QRectF(0, 0, 800, view->bgImageSize().height()));
}

TEST_F(TKInstructionViewTest, rows_lieBelowThePage) {
    for (int step = 1; step <= 4; ++step)
        EXPECT_EQ(row(step).geometry(), QRect(0, 400 + 46 * (step - 1), 640, 46)) << step;
    view->resize(900, 700);
    EXPECT_EQ(row(4).geometry(), QRect(0, 538, 900, 46));
    EXPECT_EQ(Images::size(QStringLiteral("StepBackground.png")).height(), 46);
}

TEST_F(TKInstructionViewTest, aRow_hasItsBadgeAndItsText) {
    EXPECT_EQ(row(1).textField().text(),
              QStringLiteral("Launch the Security & Privacy panel in the System Preferences."));
    EXPECT_EQ(row(2).textField().text(),
              QStringLiteral("Select the Privacy tab and unlock the padlock to allow settings changes."));
    EXPECT_EQ(row(3).textField().text(),
              QStringLiteral("Select the Accessibility group and drag Ticklog into the list on the right."));
    EXPECT_EQ(row(4).textField().text(),
              QStringLiteral("Finally tick the checkbox associated with Ticklog and restart Ticklog."));
    const ImageView& badge = row(3).badgeView();
    EXPECT_EQ(badge.image(), QStringLiteral("BadgeStep3.png"));
    EXPECT_EQ(badge.y(), (46 - badge.height()) / 2);
    EXPECT_EQ(row(3).textField().geometry().center().y(), 22);
    row(3).setActive(true);
    EXPECT_EQ(badge.image(), QStringLiteral("BadgeStep3_active.png"));
}

TEST_F(TKInstructionViewTest, thePagesText_isWhatThereIsToRead) {
    EXPECT_EQ(view->accessibleName(),
              QStringLiteral("For Ticklog to function you must grant it access to your computer. "
                             "Follow these simple steps and Ticklog will be running in no time."));
    view->setToStepNumber(1);
    EXPECT_EQ(view->accessibleName(), row(1).text());
}

TEST_F(TKInstructionViewTest, aClick_turnsToTheNextPageUpToTheLast) {
    for (int page = 1; page <= 4; ++page) {
        click();
        EXPECT_EQ(pages(), Steps{page});
    }
    click();
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(view->currentStep(), 4);
    QTest::mouseClick(view.get(), Qt::RightButton, {}, QPoint(320, 200));
    EXPECT_EQ(view->currentStep(), 4);
}

TEST_F(TKInstructionViewTest, anotherButtonOfThePointer_turnsNothing) {
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(view.get(), button, {}, QPoint(320, 200));
        QTest::mouseClick(&row(3), button);
    }
    EXPECT_EQ(view->currentStep(), 0);
}

TEST_F(TKInstructionViewTest, arrows_turnPagesAndStopAtTheEnds) {
    key(Qt::Key_Left);
    key(Qt::Key_Up);
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(view->currentStep(), 0);
    key(Qt::Key_Right);
    EXPECT_EQ(pages(), Steps{1});
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(pages(), Steps{2});
    key(Qt::Key_Up);
    EXPECT_EQ(pages(), Steps{1});
    key(Qt::Key_Left);
    EXPECT_EQ(pages(), Steps{0});
    goTo(4);
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    EXPECT_EQ(view->currentStep(), 4);
    for (const Qt::Key other : {Qt::Key_A, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_Space})
        key(other);
    EXPECT_EQ(view->currentStep(), 4);
}

TEST_F(TKInstructionViewTest, aRowThreePagesOn_isReachedPageByPage) {
    goTo(1);
    click(4);
    EXPECT_EQ(view->currentStep(), 4);
    EXPECT_EQ(view->lastStepNumber(), 2) << "and not yet more";
    EXPECT_EQ(pages(), (Steps{2, 3, 4}));
    click(1);
    EXPECT_EQ(pages(), (Steps{3, 2, 1}));
}

TEST_F(TKInstructionViewTest, onlyTheShownStepsRow_isActive) {
    view->setToStepNumber(3);
    for (int step = 1; step <= 3; ++step) {
        EXPECT_EQ(activeRows(), Steps{step}) << "while its page comes in";
        finishTurn();
    }
    EXPECT_EQ(activeRows(), Steps{3});
    goTo(0);
    EXPECT_EQ(activeRows(), Steps{});
}

TEST_F(TKInstructionViewTest, forward_onePageComesInFromTheRight) {
    goTo(2);
    view->setToStepNumber(3);
    at(0);
    EXPECT_EQ(view->currentLayerFrame().left(), 640);
    EXPECT_EQ(view->leavingLayerFrame()->left(), 0);
    at(500);
    EXPECT_NEAR(view->currentLayerFrame().center().x(), 640, 1);
    EXPECT_NEAR(view->leavingLayerFrame()->center().x(), 0, 1);
    EXPECT_NEAR(view->backgroundContents().x(), 375, 1);
    at(999);
    EXPECT_NEAR(view->leavingLayerFrame()->center().x(), -0.5 * 640, 1);
    finishTurn();
    EXPECT_EQ(view->currentLayerFrame(), QRectF(0, 0, 640, 400));
    EXPECT_EQ(view->leavingLayerFrame(), std::nullopt);
    EXPECT_EQ(view->backgroundContents().x(), 450);
    EXPECT_FALSE(isTurning());
}

TEST_F(TKInstructionViewTest, back_onePageComesInFromTheLeft) {
    goTo(3);
    view->setToStepNumber(2);
    at(0);
    EXPECT_EQ(view->currentLayerFrame().left(), -640);
    at(999);
    EXPECT_NEAR(view->leavingLayerFrame()->center().x(), 1.5 * 640, 1);
    finishTurn();
    EXPECT_EQ(view->backgroundContents().x(), 300);
}

TEST_F(TKInstructionViewTest, aTurn_takesASecond) {
    EXPECT_EQ(turn().duration(), 1000);
    EXPECT_EQ(turn().loopCount(), 1);
}

TEST_F(TKInstructionViewTest, aPageShownAtOnce_isThereAtOnce) {
    view->moveToStep(4, false);
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(view->lastStepNumber(), 4);
    EXPECT_EQ(view->currentStep(), 0) << "nobody asked for it";
    EXPECT_EQ(view->backgroundContents().x(), 600);
    EXPECT_EQ(activeRows(), Steps{4});
    view->moveToStep(4, false);
    EXPECT_EQ(activeRows(), Steps{4}) << "shown afresh, it stays what it was";
}

TEST_F(TKInstructionViewTest, thePageThatIsShown_isNotTurnedTo) {
    goTo(2);
    view->moveToStep(2, true);
    view->setToStepNumber(2);
    EXPECT_FALSE(isTurning());
}

TEST_F(TKInstructionViewTest, pagesThereAreNoneOf_areIgnored) {
    for (const int step : {-1, 5, 1000}) {
        view->setToStepNumber(step);
        view->moveToStep(step, true);
        view->moveToStep(step, false);
        view->subMoveToStep(step, true);
        EXPECT_EQ(view->currentStep(), 0);
        EXPECT_EQ(view->lastStepNumber(), 0);
        EXPECT_FALSE(isTurning());
    }
}

TEST_F(TKInstructionViewTest, clicksWhileAPageTurns_areNotLost) {
    click();
    click();
    click();
    EXPECT_EQ(view->currentStep(), 3);
    EXPECT_EQ(pages(), (Steps{1, 2, 3}));
}

TEST_F(TKInstructionViewTest, aDoubleClick_isTwoClicks) {
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, QPoint(320, 200));
    QTest::mouseDClick(view.get(), Qt::LeftButton, {}, QPoint(320, 200));
    EXPECT_GE(view->currentStep(), 2);
    EXPECT_EQ(pages().back(), view->currentStep());
}

TEST_F(TKInstructionViewTest, aChangeOfMind_turnsBackFromThePageThatWasComing) {
    click(4);
    finishTurn();
    at(300);
    EXPECT_EQ(view->lastStepNumber(), 2);
    click(1);
    EXPECT_EQ(view->currentStep(), 1);
    EXPECT_EQ(pages(), (Steps{2, 1}));
    EXPECT_EQ(activeRows(), Steps{1});
    EXPECT_EQ(view->leavingLayerFrame(), std::nullopt);
}

TEST_F(TKInstructionViewTest, manyFastClicks_endWhereTheLastOneAsked) {
    for (int i = 0; i < 200; ++i) {
        click(1 + i * 7 % 4);
        if (i % 3 == 0)
            at(100 + i);
        if (i % 11 == 0)
            key(i % 2 ? Qt::Key_Left : Qt::Key_Right);
    }
    click(3);
    pages();
    EXPECT_EQ(view->currentStep(), 3);
    EXPECT_EQ(view->lastStepNumber(), 3);
    EXPECT_EQ(view->currentLayer().number(), 3);
    EXPECT_EQ(activeRows(), Steps{3});
}

TEST_F(TKInstructionViewTest, aPageShownAtOnceWhileAnotherTurns_endsThatTurn) {
    view->setToStepNumber(4);
    at(300);
    view->moveToStep(0, false);
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(view->leavingLayerFrame(), std::nullopt);
    EXPECT_EQ(view->backgroundContents().x(), 0);
    EXPECT_EQ(activeRows(), Steps{});
}

TEST_F(TKInstructionViewTest, aPageTurnedToDirectly_isTheOnlyOneThatMoves) {
    view->subMoveToStep(3, true);
    EXPECT_EQ(pages(), Steps{3});
}

TEST_F(TKInstructionViewTest, thePageThatIsShownTurnedToDirectly_comesInFromTheLeft) {
    goTo(2);
    view->subMoveToStep(2, true);
    at(0);
    EXPECT_EQ(view->currentLayerFrame().left(), -640);
    EXPECT_EQ(view->leavingLayerFrame()->left(), 0);
    EXPECT_EQ(activeRows(), Steps{2});
    EXPECT_EQ(pages(), Steps{2});
}

TEST_F(TKInstructionViewTest, resizedWhileTurning_thePagesKeepTheirShareOfTheWay) {
    view->setToStepNumber(1);
    at(500);
    view->resize(1000, 700);
    EXPECT_NEAR(view->currentLayerFrame().center().x(), (1000 + 320 + 500) / 2.0, 1);
    EXPECT_NEAR(view->leavingLayerFrame()->center().x(), 0, 1);
    finishTurn();
    EXPECT_EQ(view->currentLayerFrame(), QRectF(180, 0, 640, 400));
}

TEST_F(TKInstructionViewTest, aLowView_showsThePageSmaller) {
    view->setPageHeight(200);
    EXPECT_EQ(view->currentLayerFrame(), QRectF(160, 0, 320, 200));
    EXPECT_EQ(row(1).y(), 200);
    view->setPageHeight(1000);
    EXPECT_EQ(view->currentLayerFrame(), QRectF(0, 0, 640, 400));
    view->resize(320, 628);
    EXPECT_EQ(view->currentLayerFrame(), QRectF(0, 0, 320, 200));
}

TEST_F(TKInstructionViewTest, destroyedWhileTurning_nothingIsLeftThatMoves) {
    view->setToStepNumber(4);
    at(300);
    turn().resume();
    view.reset();
    QCoreApplication::processEvents();
}

TEST_F(TKInstructionViewTest, whereAnimationsAreOff_pagesAreThereAtOnce) {
    style.duration = 0;
    click(4);
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(view->lastStepNumber(), 4);
    EXPECT_EQ(activeRows(), Steps{4});
    view->subMoveToStep(1, true);
    EXPECT_FALSE(isTurning());
}

TEST_F(TKInstructionViewTest, animationsSwitchedOffWhileAPageTurns_endInPlace) {
    view->setToStepNumber(4);
    at(300);
    style.duration = 0;
    finishTurn();
    EXPECT_EQ(view->lastStepNumber(), 4);
    EXPECT_FALSE(isTurning());
}

TEST_F(TKInstructionViewTest, turning_isSeen) {
    const QImage before = view->grab().toImage();
    view->setToStepNumber(1);
    at(400);
    const QImage between = view->grab().toImage();
    finishTurn();
    const QImage after = view->grab().toImage();
    EXPECT_NE(before, between);
    EXPECT_NE(between, after);
}

TEST_F(TKInstructionViewTest, fromRightToLeft_badgesAreOnTheRight) {
    view->setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(row(1).badgeView().x(), row(1).textField().x());
    EXPECT_LE(row(1).badgeView().geometry().right(), 640);
    key(Qt::Key_Right);
    EXPECT_EQ(view->currentStep(), 1) << "pages lie where they lay";
}
