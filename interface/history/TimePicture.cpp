// SPDX-License-Identifier: MIT
#include "interface/history/TimePicture.h"

#include "interface/history/PictureAccessibility.h"
#include "interface/shell/Contrast.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <cmath>
#include <utility>

TimePicture::TimePicture(const PictureColors& colors, QWidget* parent)
    : QWidget(parent)
    , m_colors(colors) {
    installPictureAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

TimePicture::~TimePicture() {
    delete m_tip;
}

void TimePicture::setCurrentItem(int item) {
    if (item >= itemCount())
        item = -1;
    if (std::exchange(m_current, item) != item)
        Q_EMIT currentItemChanged();
    update();
    if (item < 0) {
        tellNothing();
        return;
    }
    reveal(item);
    tellOfCurrent();
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(item);
    QAccessible::updateAccessibility(&focus);
}

void TimePicture::itemsChanged(int current) {
    const bool isTelling = tip() != nullptr;
    if (std::exchange(m_current, current) != current)
        Q_EMIT currentItemChanged();
    stillChanged();
    if (m_pointer)
        tellAt(*m_pointer);
    else if (isTelling && m_current >= 0)
        tellOfCurrent();
    else
        tellNothing();
    const int before = std::exchange(m_count, itemCount());
    // A list that is told anew every second cannot be read.
    if (m_count == before || !QAccessible::isActive())
        return;
    QAccessibleEvent changed(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&changed);
}

void TimePicture::stillChanged() {
    m_isStillCurrent = false;
    update();
}

void TimePicture::tell(const std::vector<PictureTip::Line>& lines, const QRect& place, int x, bool isBar) {
    if (m_tip && m_tip->parentWidget() != window())
        delete m_tip;
    if (!m_tip)
        m_tip = new PictureTip(window());
    m_tip->tell(lines, *this, place, x, isBar);
}

void TimePicture::tellNothing() {
    if (m_tip)
        m_tip->hide();
}

void TimePicture::pointTo(const QPoint& position) {
    m_pointer = position;
    tellAt(position);
}

void TimePicture::paintEvent(QPaintEvent*) {
    const double scale = devicePixelRatioF();
    const QSize pixels(int(std::ceil(width() * scale)), int(std::ceil(height() * scale)));
    if (!m_isStillCurrent || m_still.size() != pixels) {
        m_still = QPixmap(pixels);
        m_still.fill(Qt::transparent);
        QPainter painter(&m_still);
        // Each text has the direction of its own language, and is aligned by whoever draws it.
        painter.setLayoutDirection(Qt::LayoutDirectionAuto);
        painter.scale(scale, scale);
        painter.setFont(font());
        paintStill(painter);
        m_isStillCurrent = true;
    }
    QPainter painter(this);
    painter.save();
    // Pixel by pixel: a picture that is scaled, if only by one, is blurred.
    painter.scale(1 / scale, 1 / scale);
    painter.drawPixmap(0, 0, m_still);
    painter.restore();
    paintMoving(painter);
}

void TimePicture::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        lookChanged();
        updateGeometry();
        stillChanged();
        break;
    default:
        break;
    }
}

void TimePicture::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    m_pointer.reset();
    tellNothing();
}

void TimePicture::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    m_pointer.reset();
    tellNothing();
}

void TimePicture::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    m_isFocusShown = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                     event->reason() == Qt::ShortcutFocusReason;
    update();
}

void TimePicture::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    tellNothing();
    update();
}

QColor TimePicture::shade(double ofText, double contrast) const {
    const QColor ground = palette().color(QPalette::Window);
    const QColor text = palette().color(QPalette::WindowText);
    return Contrast::readable(Contrast::mixed(text, ground, ofText), text, ground, contrast);
}

void TimePicture::paintFocus(QPainter& painter, const QRect& rect) const {
    if (!hasFocus() || !m_isFocusShown)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect;
    option.state |= QStyle::State_KeyboardFocusChange;
    option.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void TimePicture::paintCursor(QPainter& painter, const QRect& rect) const {
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(rect).adjusted(-2, -2, 2, 2), 3, 3);
    painter.restore();
}
