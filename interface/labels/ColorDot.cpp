// SPDX-License-Identifier: MIT
#include "interface/labels/ColorDot.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace {

// How much of each component is left at the bottom.
constexpr float kDarkening = 0.5F;

QColor darkened(const QColor& color) {
    const auto less = [](float component) { return std::max(0.0F, component - kDarkening); };
    return QColor::fromRgbF(less(color.redF()), less(color.greenF()), less(color.blueF()), color.alphaF());
}

} // namespace

void drawColorDot(QPainter& painter, const QRectF& rect, const QColor& color, double strength) {
    QColor top = color;
    top.setAlphaF(color.alphaF() * float(strength));
    QLinearGradient gradient(QPointF(rect.center().x(), rect.top()),
                             QPointF(rect.center().x(), rect.bottom()));
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, darkened(top));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    const double radius = rect.width() / 2;
    painter.drawEllipse(rect.center(), radius, radius);
    painter.restore();
}
