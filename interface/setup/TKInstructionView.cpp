// SPDX-License-Identifier: MIT
#include "interface/setup/TKInstructionView.h"

#include "interface/setup/TKInstructionStepView.h"
#include "interface/shell/Images.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

const QString kBackground = QStringLiteral("Background650.jpg");
const QString kRowBackground = QStringLiteral("StepBackground.png");

// In pixels of the background picture: the width of the visible part, and how far it slides for each page.
constexpr double kShownWidth = 800;
constexpr double kSlide = 150;

constexpr double kFocusInset = 4;
constexpr double kFocusWidth = 2;
constexpr double kFocusRadius = 8;

bool isPage(int step) {
    return step >= 0 && step <= TKInstructionView::kLastStep;
}

} // namespace

TKInstructionView::TKInstructionView(const QRect& frame, QWidget* parent)
    : QWidget(parent)
    , m_bgImageSize(Images::size(kBackground)) {
    // Setting a name asks for the accessible description, which is then kept: so the factory must be
    // installed before.
    setObjectName(QStringLiteral("instructions"));
    setFocusPolicy(Qt::StrongFocus);
    setGeometry(frame);
    for (int step = 1; step <= kLastStep; ++step) {
        const QRect rowFrame(0, height(), width(), TKInstructionStepView::kHeight);
        m_stepViews[std::size_t(step - 1)] = new TKInstructionStepView(rowFrame, *this, step);
    }
    layOutRows();
    m_turn.setObjectName(QStringLiteral("turn"));
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(1.0);
    m_turn.setDuration(kTurnMs);
    m_turn.setEasingCurve(QEasingCurve::InOutSine);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_turn, &QVariantAnimation::finished, this, &TKInstructionView::turned);
    moveToStep(0, false);
}

void TKInstructionView::setToStepNumber(int step) {
    if (step == m_currentStep || !isPage(step))
        return;
    m_currentStep = step;
    moveToStep(step, true);
}

void TKInstructionView::moveToStep(int step, bool withAnimation) {
    if (!isPage(step))
        return;
    m_target = step;
    if (!withAnimation)
        turnTo(step, false);
    else if (m_turn.state() == QVariantAnimation::Stopped)
        turnTowardsTarget();
}

void TKInstructionView::subMoveToStep(int step, bool withAnimation) {
    if (!isPage(step))
        return;
    m_target = step;
    turnTo(step, withAnimation && isAnimated());
}

void TKInstructionView::turnTowardsTarget() {
    if (m_target == m_lastStepNumber)
        return;
    if (isAnimated())
        turnTo(m_lastStepNumber + (m_target > m_lastStepNumber ? 1 : -1), true);
    else
        turnTo(m_target, false);
}

void TKInstructionView::turnTo(int step, bool withAnimation) {
    m_turn.stop();
    m_backgroundFrom = backgroundContents().x();
    const int old = std::exchange(m_lastStepNumber, step);
    if (old > 0 && old != step)
        m_stepViews[std::size_t(old - 1)]->setActive(false);
    if (step > 0)
        m_stepViews[std::size_t(step - 1)]->setActive(true);
    m_isGoingForward = old < step;
    m_leavingLayer = std::exchange(m_currentLayer, InstructionPage(step));
    setAccessibleName(InstructionPage::text(step));
    if (withAnimation)
        m_turn.start();
    else
        m_leavingLayer.reset();
    update();
}

void TKInstructionView::turned() {
    m_leavingLayer.reset();
    update();
    turnTowardsTarget();
}

bool TKInstructionView::isAnimated() const {
    return style()->styleHint(QStyle::SH_Widget_Animate, nullptr, this) != 0 &&
           style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
}

double TKInstructionView::progress() const {
    return m_turn.state() == QVariantAnimation::Stopped ? 1 : m_turn.currentValue().toDouble();
}

QRectF TKInstructionView::frameOf(const InstructionPage& page, double centre) const {
    const QSizeF size = QSizeF(page.size()).scaled(width(), m_pageHeight, Qt::KeepAspectRatio);
    const QSizeF shown = size.boundedTo(page.size());
    return {QPointF(centre * width() - shown.width() / 2, 0), shown};
}

QRectF TKInstructionView::currentLayerFrame() const {
    // It begins just outside the view, with its edge at the view's edge.
    const double halfPage = frameOf(*m_currentLayer, 0).width() / 2 / std::max(1, width());
    const double from = (m_isGoingForward ? 1 : -1) + halfPage;
    return frameOf(*m_currentLayer, from + (0.5 - from) * progress());
}

std::optional<QRectF> TKInstructionView::leavingLayerFrame() const {
    if (!m_leavingLayer)
        return std::nullopt;
    const double to = m_isGoingForward ? -0.5 : 1.5;
    return frameOf(*m_leavingLayer, 0.5 + (to - 0.5) * progress());
}

QRectF TKInstructionView::backgroundContents() const {
    const double to = kSlide * m_lastStepNumber;
    const double x = m_backgroundFrom + (to - m_backgroundFrom) * progress();
    return {x, 0, kShownWidth, double(m_bgImageSize.height())};
}

void TKInstructionView::setPageHeight(int height) {
    m_pageHeight = std::min(height, kPageHeight);
    layOutRows();
    update();
}

int TKInstructionView::rowHeight(int width) const {
    int highest = 0;
    for (const TKInstructionStepView* row : m_stepViews)
        highest = std::max(highest, row->heightForWidth(width));
    return highest;
}

int TKInstructionView::rowsHeight(int width) const {
    return kLastStep * rowHeight(width);
}

void TKInstructionView::layOutRows() {
    const int height = rowHeight(width());
    int y = m_pageHeight + Images::size(kRowBackground).height() - TKInstructionStepView::kHeight;
    for (TKInstructionStepView* row : m_stepViews) {
        row->setGeometry(0, y, width(), height);
        y += height;
    }
}

void TKInstructionView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        setToStepNumber(std::min(m_currentStep + 1, kLastStep));
}

void TKInstructionView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        setToStepNumber(std::max(m_currentStep - 1, 0));
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        setToStepNumber(std::min(m_currentStep + 1, kLastStep));
        break;
    default:
        event->ignore();
    }
}

void TKInstructionView::resizeEvent(QResizeEvent*) {
    layOutRows();
}

void TKInstructionView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::LayoutDirectionChange)
        return;
    for (const std::optional<InstructionPage>* layer : {&m_currentLayer, &m_leavingLayer})
        if (*layer)
            (*layer)->forgetPicture();
    update();
}

void TKInstructionView::focusInEvent(QFocusEvent* event) {
    // The focus is shown only when it came by the keyboard.
    m_isFocusShown = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void TKInstructionView::focusOutEvent(QFocusEvent*) {
    m_isFocusShown = false;
    update();
}

void TKInstructionView::paintBackground(QPainter& painter) {
    if (m_background.isNull() || m_background.devicePixelRatio() < devicePixelRatioF())
        m_background = Images::stretched(kBackground, m_bgImageSize, devicePixelRatioF());
    const QRectF contents = backgroundContents();
    const double scale =
        std::max({1.0, width() / contents.width(), height() / double(m_bgImageSize.height())});
    const QPointF corner(width() / 2.0 - contents.center().x() * scale, 0);
    painter.drawPixmap(QRectF(corner, QSizeF(m_bgImageSize) * scale), m_background, m_background.rect());
}

void TKInstructionView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintBackground(painter);
    const auto paintPage = [&](const InstructionPage& page, const QRectF& frame) {
        const QPixmap& picture = page.picture(devicePixelRatioF(), layoutDirection());
        painter.drawPixmap(frame, picture, picture.rect());
    };
    if (const auto leaving = leavingLayerFrame())
        paintPage(*m_leavingLayer, *leaving);
    paintPage(*m_currentLayer, currentLayerFrame());
    if (!m_isFocusShown)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, kFocusWidth));
    painter.drawRoundedRect(
        QRectF(0, 0, width(), m_pageHeight).adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset),
        kFocusRadius, kFocusRadius);
}
