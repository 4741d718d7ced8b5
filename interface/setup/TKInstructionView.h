// SPDX-License-Identifier: MIT
#pragma once

#include "interface/setup/InstructionPage.h"

#include <QVariantAnimation>
#include <QWidget>

#include <array>
#include <optional>

class TKInstructionStepView;

// Instructions of five pages on how to grant trust: a welcome page and four steps, with a row for each step
// below the page. A click, an arrow key or a row turns the page. One page is turned at a time, in one second;
// a request meanwhile decides where to go next. Where the user wants no animations, pages change at once.
class TKInstructionView : public QWidget {
    Q_OBJECT
public:
    static constexpr int kLastStep = 4;
    static constexpr int kPageHeight = 400;
    static constexpr int kTurnMs = 1000;

    // Shows page 0.
    explicit TKInstructionView(const QRect& frame, QWidget* parent = nullptr);

    // Turns to a page, unless it is already going there. This function and the next two ignore pages that do
    // not exist.
    void setToStepNumber(int step);
    // Turns page by page, or changes at once.
    void moveToStep(int step, bool withAnimation);
    // Turns directly to that page from any other. A turn that is under way is completed first.
    void subMoveToStep(int step, bool withAnimation);

    // The size of the background picture.
    QSize bgImageSize() const { return m_bgImageSize; }
    // For steps 1 to 4.
    const std::array<TKInstructionStepView*, kLastStep>& stepViews() const { return m_stepViews; }
    // The step that was last asked for.
    int currentStep() const { return m_currentStep; }
    // The step whose page is shown or coming in.
    int lastStepNumber() const { return m_lastStepNumber; }
    const InstructionPage& currentLayer() const { return *m_currentLayer; }

    // Where the page is now; and where the page is that is going, absent if none is.
    QRectF currentLayerFrame() const;
    std::optional<QRectF> leavingLayerFrame() const;
    // The part of the background picture that is shown, in pixels of that picture.
    QRectF backgroundContents() const;

    // How much height the page may use, at most kPageHeight. The page shrinks to fit.
    void setPageHeight(int height);
    // The height that the rows need at this width.
    int rowsHeight(int width) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int rowHeight(int width) const;
    void layOutRows();
    void turnTowardsTarget();
    void turnTo(int step, bool withAnimation);
    void turned();
    bool isAnimated() const;
    // How far the turn is, from 0 to 1.
    double progress() const;
    // `centre` is in widths of the view.
    QRectF frameOf(const InstructionPage& page, double centre) const;
    void paintBackground(QPainter& painter);

    QSize m_bgImageSize;
    QPixmap m_background;
    std::array<TKInstructionStepView*, kLastStep> m_stepViews{};
    int m_pageHeight = kPageHeight;
    int m_currentStep = 0;
    int m_lastStepNumber = 0;
    // The page at which turning page by page ends.
    int m_target = 0;
    std::optional<InstructionPage> m_currentLayer;
    // The page that is going; absent when nothing is being turned.
    std::optional<InstructionPage> m_leavingLayer;
    bool m_isGoingForward = false;
    // Where the background was when the turn began, in pixels of its picture.
    double m_backgroundFrom = 0;
    bool m_isFocusShown = false;
    QVariantAnimation m_turn{this};
};
