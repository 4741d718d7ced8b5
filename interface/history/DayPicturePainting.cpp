// SPDX-License-Identifier: MIT
// How a day is painted.
#include "interface/history/DayPicture.h"
#include "interface/history/HourTicks.h"
#include "interface/shell/Contrast.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kNameMargin = 6;
constexpr int kLabelAir = 14;
// A stretch narrower than this in pixels of the device has no line at its ends: it would be nothing but lines.
constexpr int kNarrowest = 4;
// Of a name that is cut; fewer would say nothing.
constexpr qsizetype kFewestLetters = 6;

QRect pixelsOf(const QRect& rect, double scale) {
    const int left = int(std::round(rect.left() * scale));
    const int top = int(std::round(rect.top() * scale));
    return {left, top, int(std::round((rect.left() + rect.width()) * scale)) - left,
            int(std::round((rect.top() + rect.height()) * scale)) - top};
}

// The colours of a column from top to bottom, all of the same height.
struct ColumnPaint {
    const QRgb* fills = nullptr;
    int count = 0;
    QRgb edge = 0;
    bool isEdge = false;
    bool isSparse = false;
};

QImage imageOf(const std::vector<ColumnPaint>& paints, QSize size, int stripe) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const bool isEdge = y == 0 || y == image.height() - 1;
        for (std::size_t x = 0; x < paints.size(); ++x) {
            const ColumnPaint& paint = paints[x];
            if (paint.count == 0 || (paint.isSparse && (int(x) + y) / stripe % 2 != 0))
                continue;
            const bool isLine = !paint.isSparse && (isEdge || paint.isEdge);
            line[x] = isLine             ? paint.edge
                      : paint.count == 1 ? *paint.fills
                                         : paint.fills[y * paint.count / image.height()];
        }
    }
    return image;
}

} // namespace

void DayPicture::paintStill(QPainter& painter) {
    paintAxis(painter);
    for (const Lane lane : {Programs, Projects})
        paintLane(painter, lane);
}

void DayPicture::paintAxis(QPainter& painter) const {
    const QRect rect = chart();
    const QFontMetrics metrics = fontMetrics();
    // Ten is as wide as any hour.
    const qint64 sample = 1000LL * 60 * 60 * 22 + 1000LL * 60 * 50;
    const int room = std::max(metrics.horizontalAdvance(HourTicks::label(sample, 60 * 1000)), 20) + kLabelAir;
    const qint64 step = HourTicks::stepFor(3600e3 / timePerPixel(), room);
    const double scale = painter.worldTransform().m11();
    // Through the lanes they only guide the eye.
    const QColor guide = shade(0.14);
    const QColor tickMark = shade(0.14, Contrast::kOfMarks);
    double free = isMirrored() ? width() : 0;
    for (const qint64 tick : HourTicks::ticks(m_view.from(), m_view.to(), step)) {
        const double x = std::round(xOf(double(tick)) * scale) / scale;
        painter.fillRect(QRectF(x, axisHeight() - 4, 1 / scale, 4), tickMark);
        painter.fillRect(QRectF(x, axisHeight(), 1 / scale, rect.bottom() + 1 - axisHeight()), guide);
        const QString text = HourTicks::label(tick, step);
        const double wide = metrics.horizontalAdvance(text);
        const double left = x - wide / 2;
        if (left < -1 || left + wide > width() + 1)
            continue;
        // A clock that was set back shows an hour twice, perhaps too close.
        if (isMirrored() ? left + wide > free : left < free)
            continue;
        free = isMirrored() ? left - kLabelAir / 2 : left + wide + kLabelAir / 2;
        painter.setPen(shade(0.75, Contrast::kOfTexts));
        painter.drawText(QRectF(left, 0, wide + 1, axisHeight() - 4), Qt::AlignCenter | Qt::TextSingleLine,
                         text);
    }
}

void DayPicture::paintLane(QPainter& painter, Lane lane) const {
    const QRect rect = laneRect(lane);
    const double scale = painter.worldTransform().m11();
    const QRect pixels = pixelsOf(rect, scale);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect name(kNameMargin, rect.top(), nameWidth() - kNameMargin, rect.height());
    painter.drawText(isMirrored() ? name.translated(width() - name.right() - 1 - name.left(), 0) : name,
                     Qt::AlignVCenter | Qt::TextSingleLine | (isMirrored() ? Qt::AlignRight : Qt::AlignLeft),
                     nameOf(lane));
    const LaneContent& content = m_lanes[lane];
    auto columns = laneColumns(content.spans, content.colorOf, m_view.from(), m_view.to(), pixels.width());
    if (isMirrored())
        std::ranges::reverse(columns);
    painter.save();
    painter.scale(1 / scale, 1 / scale);
    QColor track = palette().color(QPalette::Base);
    track.setAlphaF(0.55F);
    painter.fillRect(pixels, track);
    // Where window and track are of one colour, one sees nevertheless how far the day reaches.
    const int line = std::max(1, int(scale));
    const QColor edge = shade(0.14, Contrast::kOfMarks);
    painter.fillRect(QRect(pixels.left(), pixels.top(), pixels.width(), line), edge);
    painter.fillRect(QRect(pixels.left(), pixels.bottom() + 1 - line, pixels.width(), line), edge);
    paintRuns(painter, pixels, content, columns);
    painter.restore();
}

void DayPicture::paintRuns(QPainter& painter, const QRect& pixels, const LaneContent& content,
                           const std::vector<LaneColumn>& columns) const {
    std::vector<Run> runs;
    for (int x = 0; x < int(columns.size()); ++x) {
        const LaneColumn& column = columns[std::size_t(x)];
        if (runs.empty() || runs.back().column != column)
            runs.push_back({x, x, column});
        runs.back().end = x + 1;
    }
    std::vector<ColumnPaint> paints(columns.size());
    for (const Run& run : runs) {
        if (run.column.entry < 0)
            continue;
        const LaneEntry& entry = content.entries[std::size_t(run.column.entry)];
        const bool hasEnds = run.end - run.first >= kNarrowest;
        for (int x = run.first; x < run.end; ++x)
            paints[std::size_t(x)] = {entry.fills.data(), int(entry.fills.size()), entry.edge,
                                      hasEnds && (x == run.first || x == run.end - 1), run.column.isSparse};
    }
    const int stripe = std::max(2, int(std::round(2 * devicePixelRatioF())));
    const QImage image = imageOf(paints, pixels.size(), stripe);
    painter.drawImage(pixels.topLeft(), image);
    paintNames(painter, pixels, content, runs);
}

// Names in the stretches that have room for them: colours repeat, names do not.
void DayPicture::paintNames(QPainter& painter, const QRect& pixels, const LaneContent& content,
                            const std::vector<Run>& runs) const {
    const QFontMetrics metrics = fontMetrics();
    const double scale = devicePixelRatioF();
    const int air = 4;
    for (const Run& run : runs) {
        const double wide = (run.end - run.first) / scale - 2 * air;
        if (run.column.entry < 0 || run.column.isSparse || wide < metrics.averageCharWidth() * 2)
            continue;
        const LaneEntry& entry = content.entries[std::size_t(run.column.entry)];
        const QString name = entry.names.join(QStringLiteral(", ")).left(200);
        const QString text = metrics.elidedText(name, Qt::ElideRight, int(wide));
        if (name.isEmpty() || text.size() < std::min<qsizetype>(name.size(), kFewestLetters))
            continue;
        painter.save();
        painter.scale(scale, scale);
        painter.setPen(PictureColors::textOn(entry.colors[entry.colors.size() / 2]));
        painter.drawText(QRectF((pixels.left() + run.first) / scale + air, pixels.top() / scale, wide,
                                pixels.height() / scale),
                         Qt::AlignCenter | Qt::TextSingleLine, text);
        painter.restore();
    }
}

void DayPicture::paintMoving(QPainter& painter) {
    painter.save();
    painter.setClipRect(chart().adjusted(-4, 0, 4, 4));
    paintSelection(painter);
    if (m_hovered >= 0) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
        const Lane lane = std::exchange(m_lane, m_hoveredLane);
        painter.drawRect(itemRect(m_hovered).adjusted(0, 0, -1, -1));
        m_lane = lane;
    }
    paintNow(painter);
    if (hasFocus() && currentItem() >= 0)
        paintCursor(painter, itemRect(currentItem()));
    painter.restore();
    if (currentItem() < 0)
        paintFocus(painter, laneRect(Programs).united(laneRect(Projects)));
}

void DayPicture::paintSelection(QPainter& painter) const {
    auto piece = m_chosen;
    if (m_drag && m_drag->isMoved)
        piece = std::minmax({m_drag->from, m_drag->to});
    if (!piece)
        return;
    const double one = xOf(piece->first);
    const double other = xOf(piece->second);
    const QRect lanes = laneRect(Programs).united(laneRect(Projects));
    QRectF rect(std::min(one, other), lanes.top() - 3, std::abs(other - one), lanes.height() + 6);
    QColor fill = palette().color(QPalette::Highlight);
    painter.setPen(QPen(fill, 2));
    fill.setAlphaF(0.25F);
    painter.setBrush(fill);
    painter.drawRect(rect);
    painter.setBrush(Qt::NoBrush);
}

void DayPicture::paintNow(QPainter& painter) const {
    if (double(m_now) < m_view.from() || double(m_now) > m_view.to())
        return;
    const double scale = devicePixelRatioF();
    const double x = std::floor(xOf(double(m_now)) * scale) / scale;
    const QRect lanes = laneRect(Programs).united(laneRect(Projects));
    const QColor color = palette().color(QPalette::WindowText);
    painter.fillRect(QRectF(x, lanes.top() - 4, std::max(1.0, std::round(scale) / scale), lanes.height() + 8),
                     color);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double middle = x + 0.5;
    const double top = lanes.top() - 5;
    painter.drawPolygon(QPolygonF{{middle - 4, top - 1}, {middle + 4, top - 1}, {middle, top + 4}});
    painter.restore();
}
