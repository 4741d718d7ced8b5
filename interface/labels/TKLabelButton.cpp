// SPDX-License-Identifier: MIT
#include "interface/labels/TKLabelButton.h"

#include "interface/labels/ColorDot.h"
#include "interface/labels/LabelAccessibility.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/labels/TKLabelViewController.h"
#include "interface/shell/Images.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

// Logical pixels.
constexpr int kSide = 22;
constexpr qreal kFrameWidth = 2;
constexpr qreal kInset = 2;
constexpr qreal kFocusInset = 1;
constexpr qreal kFocusWidth = 2;
constexpr qreal kFocusRadius = 5;
// How strong things are, 0 to 1.
constexpr double kDisabled = 0.5;
constexpr double kSelectedFrame = 0.3;
constexpr double kHoveredFrame = 0.75;

} // namespace

TKLabelButton::TKLabelButton(TKLabelViewController& row)
    : QAbstractButton(&row)
    , m_labelViewController(row) {
    installLabelAccessibility();
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(kSide, kSide);
}

QSize TKLabelButton::sizeHint() const {
    return {kSide, kSide};
}

void TKLabelButton::setColorTag(int tag) {
    if (tag == m_colorTag)
        return;
    m_colorTag = tag;
    m_color = TKLabelColorList::sharedColorList().colorForTag(tag);
    update();
}

void TKLabelButton::setSelectedColor(bool isSelected) {
    if (!isEnabled())
        return;
    m_selectedColor = isSelected;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent told(this, changed);
    QAccessible::updateAccessibility(&told);
}

void TKLabelButton::setEnabled(bool isEnabled) {
    m_selectedColor = m_mouseOver = false;
    QAbstractButton::setEnabled(isEnabled);
    update();
}

void TKLabelButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    if (!isEnabled())
        return;
    m_mouseOver = true;
    update();
}

void TKLabelButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    m_mouseOver = false;
    update();
}

void TKLabelButton::hideEvent(QHideEvent* event) {
    QAbstractButton::hideEvent(event);
    m_mouseOver = false;
}

void TKLabelButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        choose();
}

void TKLabelButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        break;
    case Qt::Key_Left:
        m_labelViewController.moveFocus(*this, isRightToLeft() ? 1 : -1);
        break;
    case Qt::Key_Right:
        m_labelViewController.moveFocus(*this, isRightToLeft() ? -1 : 1);
        break;
    default:
        // Not accepted, so that the menu handles it as well.
        event->ignore();
    }
}

void TKLabelButton::choose() {
    if (isEnabled())
        m_labelViewController.setColoring(*this);
}

// Inside the frame, so that the label that is chosen shows the focus as well.
void TKLabelButton::drawFocus(QPainter& painter) const {
    const QRectF ring = QRectF(rect()).adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset);
    painter.setPen(QPen(palette().color(QPalette::WindowText), kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring, kFocusRadius, kFocusRadius);
}

void TKLabelButton::paintEvent(QPaintEvent*) {
    const double strength = isEnabled() ? 1 : kDisabled;
    const double frame = m_selectedColor ? kSelectedFrame : m_mouseOver || hasFocus() ? kHoveredFrame : 0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal w = width();
    const qreal h = height();
    // Black on a light menu, white on a dark one.
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(float(frame * strength));
    painter.setPen(QPen(ink, kFrameWidth, Qt::SolidLine, Qt::FlatCap));
    // Leaves the corners open.
    painter.drawLines(QList<QLineF>{
        {0.5, 0, w - 0.5, 0}, {w, 0.5, w, h - 0.5}, {w - 0.5, h, 0.5, h}, {0, h - 0.5, 0, 0.5}});
    const QRectF inner = QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset);
    if (hasFocus())
        drawFocus(painter);
    if (m_color.alphaF() > 0)
        drawColorDot(painter, inner, m_color, strength);
    else
        Images::named(QStringLiteral("SmartMenu-NoLabel")).paint(&painter, inner.toRect());
}
