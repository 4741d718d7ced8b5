// SPDX-License-Identifier: MIT
#pragma once

#include "interface/setup/InstructionPage.h"

#include <QVariantAnimation>
#include <QWidget>

#include <array>
#include <optional>

class TKInstructionStepView;

// A picture book of five pages that shows how trust is granted: a welcome and four steps, each with a row below the page.
// A click or an arrow key turns the page; so does a row. Pages are turned one at a time, each for a second; whatever is
// asked for meanwhile is what it turns to next. Where the user wants no animations, it turns at once.
class TKInstructionView : public QWidget {
    Q_OBJECT
public:
    static constexpr int kLastStep = 4;
    static constexpr int kPageHeight = 400;
    static constexpr int kTurnMs = 1000;

    // Shows page 0.
    explicit TKInstructionView(const QRect& frame, QWidget* parent = nullptr);

    // Turns to a page, unless it is on its way there. This and what follows ignore pages that there are not.
    void setToStepNumber(int step);
    // Turns page by page, or goes there at once.
    void moveToStep(int step, bool withAnimation);
    // Turns to that page directly, whichever is shown. A page that is still being turned is finished first.
    void subMoveToStep(int step, bool withAnimation);

    // The background picture's.
    QSize bgImageSize() const { return m_bgImageSize; }
    // For steps 1 to 4.
    const std::array<TKInstructionStepView*, kLastStep>& stepViews() const { return m_stepViews; }
    // The step that was asked for.
    int currentStep() const { return m_currentStep; }
    // The step whose page is shown, or is coming in.
    int lastStepNumber() const { return m_lastStepNumber; }
    const InstructionPage& currentLayer() const { return *m_currentLayer; }

    // Where the page is now, and the one that is going; absent when none is.
    QRectF currentLayerFrame() const;
    std::optional<QRectF> leavingLayerFrame() const;
    // The part of the background picture that is shown, in its own pixels.
    QRectF backgroundContents() const;

    // How much of the view is for the page; never more than kPageHeight. In less the page is smaller.
    void setPageHeight(int height);
    // What the rows need below it, at that width.
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
    // From 0 to 1.
    double progress() const;
    // Centres are in widths of the view.
    QRectF frameOf(const InstructionPage& page, double centre) const;
    void paintBackground(QPainter& painter);

    QSize m_bgImageSize;
    QPixmap m_background;
    std::array<TKInstructionStepView*, kLastStep> m_stepViews{};
    int m_pageHeight = kPageHeight;
    int m_currentStep = 0;
    int m_lastStepNumber = 0;
    // Where turning page by page ends.
    int m_target = 0;
    std::optional<InstructionPage> m_currentLayer;
    // On its way out; absent when nothing is being turned.
    std::optional<InstructionPage> m_leavingLayer;
    bool m_isGoingForward = false;
    // In the background picture's pixels, where the current turn began.
    double m_backgroundFrom = 0;
    bool m_isFocusShown = false;
    QVariantAnimation m_turn{this};
};
