// SPDX-License-Identifier: MIT
#include "interface/setup/TKInstructionStepView.h"

#include "interface/setup/ImageView.h"
#include "interface/setup/InstructionPage.h"
#include "interface/setup/TKInstructionView.h"
#include "interface/shell/Images.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace {

// Logical pixels.
constexpr int kTextHeight = 18;
constexpr double kFontPixels = 14;
constexpr int kMargin = 14;
constexpr int kBadgeGap = 12;
constexpr int kLeastAir = 5;
constexpr double kFocusInset = 3;
constexpr double kFocusWidth = 2;
constexpr double kFocusRadius = 5;
// Drawn over the picture while the pointer is on it.
constexpr QColor kHovered(255, 255, 255, 22);

} // namespace

TKInstructionStepView::TKInstructionStepView(const QRect& frame, TKInstructionView& controllingView,
                                             int stepNumber)
    : QAbstractButton(&controllingView)
    , m_stepNumber(stepNumber)
    , m_badgeView(new ImageView(this))
    , m_textField(new PlainLabel(this))
    , m_controllingView(controllingView) {
    setObjectName(QStringLiteral("step%1").arg(stepNumber));
    setText(InstructionPage::stepText(stepNumber));
    setAccessibleName(text());
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    m_textField->setObjectName(QStringLiteral("textField"));
    m_textField->setAccessibleName(text());
    m_textField->setTextFormat(Qt::PlainText);
    m_textField->setText(text());
    m_textField->setWordWrap(true);
    m_textField->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette white;
    white.setColor(m_textField->foregroundRole(), Qt::white);
    m_textField->setPalette(white);
    connect(this, &QAbstractButton::clicked, this,
            [this] { m_controllingView.setToStepNumber(m_stepNumber); });
    chooseFont();
    setActive(false);
    setGeometry(frame);
}

void TKInstructionStepView::setActive(bool isActive) {
    m_isActive = isActive;
    const QString badge =
        isActive ? QStringLiteral("BadgeStep%1_active.png") : QStringLiteral("BadgeStep%1.png");
    m_badgeView->setImage(badge.arg(m_stepNumber));
    setAccessibleDescription(isActive ? localized("Current step") : QString());
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent told(this, changed);
    QAccessible::updateAccessibility(&told);
    update();
}

QString TKInstructionStepView::background() const {
    return m_isActive ? QStringLiteral("StepBackground_active.png") : QStringLiteral("StepBackground.png");
}

int TKInstructionStepView::textWidth(int width) const {
    return width - 2 * kMargin - m_badgeView->width() - kBadgeGap;
}

int TKInstructionStepView::heightForWidth(int width) const {
    return std::max(kHeight, m_textField->heightForWidth(textWidth(width)) + 2 * kLeastAir);
}

QSize TKInstructionStepView::sizeHint() const {
    return {width(), heightForWidth(width())};
}

void TKInstructionStepView::layOut() {
    const int space = textWidth(width());
    const int textHeight = std::max(kTextHeight, m_textField->heightForWidth(space));
    const bool isMirrored = isRightToLeft();
    const int badgeX = isMirrored ? width() - kMargin - m_badgeView->width() : kMargin;
    const int textX = isMirrored ? kMargin : kMargin + m_badgeView->width() + kBadgeGap;
    const Qt::Alignment side = isMirrored ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft;
    m_textField->setAlignment(side | Qt::AlignVCenter);
    m_badgeView->move(badgeX, (height() - m_badgeView->height()) / 2);
    m_textField->setGeometry(textX, (height() - textHeight) / 2, space, textHeight);
}

void TKInstructionStepView::chooseFont() {
    QFont font = QWidget::font();
    font.setPixelSize(qRound(kFontPixels * InstructionPage::textScale()));
    m_textField->setFont(font);
}

bool TKInstructionStepView::event(QEvent* event) {
    const bool isHandled = QAbstractButton::event(event);
    if (event->type() == QEvent::FontChange)
        chooseFont();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        layOut();
    return isHandled;
}

void TKInstructionStepView::resizeEvent(QResizeEvent*) {
    layOut();
}

void TKInstructionStepView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_controllingView.setToStepNumber(m_stepNumber);
}

void TKInstructionStepView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            click();
        break;
    default:
        // The arrow keys turn pages wherever the focus is.
        event->ignore();
    }
}

void TKInstructionStepView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Images::stretched(background(), size(), devicePixelRatioF()));
    if (underMouse() && !m_isActive)
        painter.fillRect(rect(), kHovered);
    if (!hasFocus())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, kFocusWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset),
                            kFocusRadius, kFocusRadius);
}
