// SPDX-License-Identifier: MIT
// How a period is painted.
#include "interface/history/PeriodPicture.h"

#include "interface/history/PictureTexts.h"
#include "interface/shell/Contrast.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QPainter>
#include <QStyle>

#include <cmath>

namespace {

// A part lower or narrower than this has no outline: it would be nothing but outline.
constexpr int kSmallest = 3;

} // namespace

void PeriodPicture::paintStill(QPainter& painter) {
    paintAxis(painter);
    paintBars(painter);
    paintLabels(painter);
    paintAverage(painter);
    paintSums(painter);
    paintLegend(painter);
}

void PeriodPicture::paintAxis(QPainter& painter) const {
    const QRect rect = plot();
    const double scale = painter.worldTransform().m11();
    const QFontMetrics metrics = fontMetrics();
    const qint64 each = measures().step;
    for (qint64 length = 0; length <= measures().top; length += each) {
        const double y = std::round(yOf(length) * scale) / scale;
        const QRect line = mirrored({rect.left(), 0, rect.width(), 1});
        painter.fillRect(QRectF(line.left(), y, line.width(), 1 / scale),
                         length == 0 ? shade(0.45, Contrast::kOfMarks) : shade(0.14));
        painter.setPen(shade(0.75, Contrast::kOfTexts));
        const QRect label(0, int(y) - metrics.height() / 2, rect.left() - 6, metrics.height());
        painter.drawText(mirrored(label),
                         Qt::AlignVCenter | Qt::TextSingleLine |
                             (isMirrored() ? Qt::AlignLeft : Qt::AlignRight),
                         length == 0 ? QStringLiteral("0") : PictureTexts::length(length));
    }
}

void PeriodPicture::paintBars(QPainter& painter) const {
    for (std::size_t place = 0; place < m_bars.size(); ++place)
        for (const Part& part : m_bars[place].parts) {
            const QRect rect = partRect(place, part);
            const QColor& color = m_legend[part.entry].color;
            if (rect.height() < kSmallest || rect.width() < kSmallest) {
                painter.fillRect(rect, color);
                continue;
            }
            const double line = 1 / std::floor(painter.worldTransform().m11());
            painter.fillRect(rect, m_legend[part.entry].outline);
            painter.fillRect(QRectF(rect).adjusted(line, line, -line, 0), color);
        }
}

// Above each bar, where each has room for it.
void PeriodPicture::paintSums(QPainter& painter) const {
    const QFontMetrics metrics = fontMetrics();
    int widest = 0;
    for (const Bar& bar : m_bars)
        widest = std::max(widest, metrics.horizontalAdvance(PictureTexts::length(bar.length)));
    if (m_bars.empty() || widest + 6 > plot().width() / int(m_bars.size()))
        return;
    for (std::size_t place = 0; place < m_bars.size(); ++place) {
        const Bar& bar = m_bars[place];
        if (bar.length == 0)
            continue;
        const QString text = PictureTexts::length(bar.length);
        const int wide = metrics.horizontalAdvance(text) + 4;
        const QRect rect(placeRect(place).center().x() + 1 - wide / 2,
                         int(yOf(bar.height())) - metrics.height() - 1, wide, metrics.height());
        // The line of the average may pass here.
        painter.fillRect(rect, palette().color(QPalette::Window));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, text);
    }
}

void PeriodPicture::paintLabels(QPainter& painter) const {
    if (m_places.count() == 0)
        return;
    const QRect rect = plot();
    const double each = double(rect.width()) / double(m_places.count());
    QFont bold = font();
    bold.setBold(true);
    const auto labels = m_places.labels(QFontMetrics(bold), each);
    const auto today = m_places.placeOf(m_today);
    const int top = rect.bottom() + 4;
    for (std::size_t place = 0; place < labels.size(); ++place) {
        const QRect whole = placeRect(place);
        const bool isToday = place == today;
        if (isToday) {
            const int wide = std::clamp(int(whole.width() * 0.76), 4, 64);
            painter.fillRect(QRect(whole.center().x() + 1 - wide / 2, rect.bottom() + 1, wide, 3),
                             palette().color(QPalette::Highlight));
        }
        if (labels[place].isEmpty())
            continue;
        painter.setFont(isToday ? bold : font());
        painter.setPen(isToday ? palette().color(QPalette::WindowText) : shade(0.75, Contrast::kOfTexts));
        const int wide = QFontMetrics(bold).horizontalAdvance(labels[place]) + 4;
        painter.drawText(QRect(whole.center().x() + 1 - wide / 2, top, wide, height() - top),
                         Qt::AlignCenter | Qt::TextSingleLine, labels[place]);
    }
    painter.setFont(font());
}

void PeriodPicture::paintAverage(QPainter& painter) const {
    if (m_average <= 0)
        return;
    const QRect rect = plot();
    const double scale = painter.worldTransform().m11();
    const double y = std::round(yOf(m_average) * scale) / scale + 0.5 / scale;
    const QRect line = mirrored({rect.left(), 0, rect.width() + 4, 1});
    const QColor text = palette().color(QPalette::WindowText);
    QPen pen(text, 1);
    pen.setDashPattern({4, 3});
    painter.setPen(pen);
    painter.drawLine(QPointF(line.left(), y), QPointF(line.left() + line.width(), y));
    painter.setPen(text);
    const int high = fontMetrics().height();
    const int top = std::clamp(int(y) - high, 0, std::max(0, height() - 2 * high));
    const QRect figure = mirrored({rect.right() + 7, top, measures().averageWidth - 8, 2 * high});
    const int side = Qt::TextSingleLine | (isMirrored() ? Qt::AlignRight : Qt::AlignLeft);
    painter.drawText(figure, side | Qt::AlignTop, localized("Average"));
    painter.drawText(figure, side | Qt::AlignBottom, PictureTexts::length(m_average));
}

void PeriodPicture::paintLegend(QPainter& painter) const {
    if (measures().legendWidth == 0)
        return;
    const QFontMetrics metrics = fontMetrics();
    const int size = metrics.ascent() - 2;
    for (std::size_t i = 0; i < m_legend.size(); ++i) {
        const QRect row = legendRow(i);
        const auto placed = [&](const QRect& rect) {
            return QStyle::visualRect(layoutDirection(), row, rect);
        };
        const QRect box(row.left(), row.top() + (row.height() - size) / 2, size, size);
        painter.fillRect(placed(box), m_legend[i].outline);
        painter.fillRect(placed(box).adjusted(1, 1, -1, -1), m_legend[i].color);
        const QRect text = placed(row.adjusted(size + 6, 0, 0, 0));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(
            text, Qt::AlignVCenter | Qt::TextSingleLine | (isMirrored() ? Qt::AlignRight : Qt::AlignLeft),
            metrics.elidedText(m_legend[i].shownName().left(200), Qt::ElideRight, text.width()));
    }
}

void PeriodPicture::paintMoving(QPainter& painter) {
    if (m_hovered) {
        QColor wash = palette().color(QPalette::WindowText);
        wash.setAlphaF(0.06F);
        painter.fillRect(placeRect(m_hovered->bar), wash);
    }
    const auto entry = m_hovered && m_hovered->part
                           ? std::optional(m_bars[m_hovered->bar].parts[*m_hovered->part].entry)
                           : m_hoveredEntry;
    if (m_hovered && m_hovered->part) {
        const int number = numberOf(*m_hovered);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
        painter.drawRect(itemRect(number).adjusted(0, 0, -1, -1));
    }
    if (entry && measures().legendWidth > 0) {
        QColor wash = palette().color(QPalette::WindowText);
        wash.setAlphaF(0.1F);
        painter.fillRect(legendRow(*entry).adjusted(-3, 0, 3, 0), wash);
    }
    if (currentItem() < 0)
        paintFocus(painter, rect().adjusted(2, 2, -2, -2));
    else if (hasFocus())
        paintCursor(painter, itemRect(currentItem()).adjusted(2, 2, -2, -2));
}
