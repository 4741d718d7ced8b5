// SPDX-License-Identifier: MIT
#include "interface/outline/TKTableLabelCell.h"

#include "interface/labels/ColorDot.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/outline/CutToWidth.h"
#include "interface/shell/Images.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <cmath>

namespace {

constexpr QSizeF kImageSize(TKTableLabelCell::kIconSize, TKTableLabelCell::kIconSize);
constexpr double kIconIndent = 6;
constexpr double kIconGap = 7;
constexpr double kMarkGap = 3;
constexpr double kWindowIconGap = 3;
constexpr double kProgramIconGap = 5;
constexpr double kRoomForDot = 18;
constexpr double kDotInset = 17;
constexpr double kDotSize = 12;
constexpr double kDotStep = 15;
// Space between the edge of the text's rectangle and the text.
constexpr double kTextInset = 2;
// The opacity of the dimmed part, 0 to 1.
constexpr float kDimmed = 0.65F;
constexpr float kQuiet = 0.7F;
constexpr float kRing = 0.55F;

// Looked up once and kept.
const QIcon& documentImage() {
    static const QIcon image = Images::named(QStringLiteral("CellSubtimer"));
    return image;
}

const QIcon& freezeActionImage() {
    static const QIcon image = Images::named(QStringLiteral("CellStopToBookmark"));
    return image;
}

const QIcon& freezeImage() {
    static const QIcon image = Images::named(QStringLiteral("CellFrozenBookmark"));
    return image;
}

const QIcon& sidebarImage(bool isAllTimers, bool isSelected) {
    static const QIcon images[] = {
        Images::named(QStringLiteral("sidebar_project")),
        Images::named(QStringLiteral("sidebar_project_selected")),
        Images::named(QStringLiteral("sidebar_alltimers")),
        Images::named(QStringLiteral("sidebar_alltimers_selected")),
    };
    return images[(isAllTimers ? 2 : 0) + (isSelected ? 1 : 0)];
}

// Aligned to whole pixels, because thin lines would blur.
void drawAligned(QPainter& painter, const QPixmap& pixmap, const QPointF& place) {
    const qreal scale = painter.device()->devicePixelRatioF();
    const QTransform& transform = painter.transform();
    const QPointF origin(std::round((place.x() + transform.dx()) * scale) / scale - transform.dx(),
                         std::round((place.y() + transform.dy()) * scale) / scale - transform.dy());
    painter.drawPixmap(origin, pixmap);
}

void drawImage(QPainter& painter, const QIcon& image, const QRectF& rect, const QColor& tint) {
    if (rect.isEmpty())
        return;
    const qreal scale = painter.device()->devicePixelRatioF();
    QPixmap pixmap = image.pixmap(rect.size().toSize(), scale);
    if (tint.isValid()) {
        QPainter tinting(&pixmap);
        tinting.setCompositionMode(QPainter::CompositionMode_SourceIn);
        tinting.fillRect(QRectF(QPointF(), rect.size()), tint);
    }
    drawAligned(painter, pixmap, rect.topLeft());
}

// Some colours are hardly seen on some grounds by themselves.
void drawRing(QPainter& painter, const QRectF& dot, QColor ink) {
    ink.setAlphaF(ink.alphaF() * kRing);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(dot.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

// How many characters at the end of `elided` belong to the dimmed end of `whole`.
int dimmedLengthOfElided(const QString& elided, const QString& whole, int dimmedLength) {
    qsizetype kept = 0;
    while (kept < elided.size() && kept < whole.size() && elided[kept] == whole[kept])
        ++kept;
    const qsizetype plainLength = whole.size() - dimmedLength;
    if (kept >= plainLength)
        return int(elided.size() - plainLength);
    // Minus the sign for what was left out.
    return int(std::min<qsizetype>(dimmedLength, std::max<qsizetype>(0, elided.size() - kept - 1)));
}

void drawText(QPainter& painter, const QRectF& rect, const TKTableLabelCell::Text& text) {
    constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    const QFontMetricsF metrics(text.font);
    const QRectF inner = rect.adjusted(kTextInset, 0, -kTextInset, 0);
    if (inner.width() <= 0)
        return;
    // The original name is found by what stands before it.
    const Qt::TextElideMode elision = text.dimmedLength > 0 ? Qt::ElideMiddle : elisionOf(text.text);
    const QString shown = metrics.elidedText(cutToWidth(text.text, inner.width()), elision, inner.width());
    const int dimmedLength =
        text.dimmedLength > 0 ? dimmedLengthOfElided(shown, text.text, text.dimmedLength) : 0;
    painter.setFont(text.font);
    painter.setPen(text.color);
    if (dimmedLength == 0) {
        painter.drawText(inner, kFlags, shown);
        return;
    }
    QTextCharFormat dimmed;
    QColor color = text.color;
    color.setAlphaF(color.alphaF() * kDimmed);
    dimmed.setForeground(color);
    // Laid out in one piece: which part is on the left depends on the languages of both.
    QTextLayout layout(shown, text.font, painter.device());
    layout.setFormats({{int(shown.size()) - dimmedLength, dimmedLength, dimmed}});
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setNumColumns(int(shown.size()));
    layout.endLayout();
    const QRectF place =
        QStyle::alignedRect(painter.layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                            QSizeF(line.naturalTextWidth(), line.height()).toSize(), inner.toRect());
    layout.draw(&painter, place.topLeft());
}

} // namespace

QSize TKTableLabelCell::freezeImageSize() {
    return kImageSize.toSize();
}

QIcon TKTableLabelCell::icon() const {
    return iconType == AllTimersIcon || iconType == ProjectIcon
               ? sidebarImage(iconType == AllTimersIcon, selected)
               : QIcon();
}

TKTableLabelCell::Layout TKTableLabelCell::layout(const QRectF& frame, bool isHovered) const {
    Layout layout;
    double x = frame.x();
    double width = frame.width();
    const double y = frame.y();
    const double height = frame.height();
    const double imageY = y + (height - kImageSize.height()) * 0.5;
    if (iconType != NoIcon) {
        const QSizeF size = icon().isNull() ? QSizeF(0, 0) : kImageSize;
        x += kIconIndent;
        width -= kIconIndent;
        layout.icon = QRectF(QPointF(x, y + (height - size.height()) * 0.5), size);
        x += size.width() + kIconGap;
        width -= size.width() + kIconGap;
    }
    double right = x + width;
    if (selectedTags && (selectedTags->isEmpty() || selectedTags->first() != 0))
        width -= kRoomForDot;
    if (programIcon) {
        layout.programIcon = QRectF(QPointF(x, imageY), kImageSize);
        x += kImageSize.width() + kProgramIconGap;
        width -= kImageSize.width() + kProgramIconGap;
    }
    if (showWindowIcon) {
        layout.windowIcon = QRectF(QPointF(x, imageY), kImageSize);
        // The text's rectangle is not reduced by the gap: it may reach into what is on its right.
        x += kImageSize.width() + kWindowIconGap;
        width -= kImageSize.width();
    }
    const bool hasMark = isFrozen || showsFreezeAction(isHovered);
    if (hasMark)
        width -= kImageSize.width() + kMarkGap;
    layout.text = QRectF(x, y, width, height);
    if (hasMark) {
        right -= kImageSize.width();
        const QPointF origin(right, y + std::ceil(float((height - kImageSize.height()) * 0.5)));
        layout.mark = QRectF(origin, kImageSize);
    }
    if (selectedTags)
        for (qsizetype i = 0; i < selectedTags->size(); ++i)
            layout.dots.emplace_back(right - kDotInset - double(i) * kDotStep,
                                     y + std::round(float((height - kDotSize) * 0.5)), kDotSize, kDotSize);
    return layout;
}

TKTableLabelCell::Layout TKTableLabelCell::Layout::mirrored(const QRectF& frame) const {
    const auto mirror = [&](QRectF& rect) {
        if (!rect.isEmpty())
            rect.moveRight(frame.left() + frame.right() - rect.left());
    };
    Layout layout = *this;
    for (QRectF* rect : {&layout.icon, &layout.programIcon, &layout.windowIcon, &layout.text, &layout.mark})
        mirror(*rect);
    std::ranges::for_each(layout.dots, mirror);
    return layout;
}

void TKTableLabelCell::drawWithFrame(QPainter& painter, const QRectF& frame, bool isHovered,
                                     const Text& text) const {
    const bool isMirrored = painter.layoutDirection() == Qt::RightToLeft;
    const Layout places = isMirrored ? layout(frame, isHovered).mirrored(frame) : layout(frame, isHovered);
    const QColor tint = text.isOnHighlight ? text.color : QColor();
    // Quiet beside the colours of projects, and to be seen on whatever a palette marks a selection with.
    QColor quiet = text.color;
    quiet.setAlphaF(text.isOnHighlight ? 1 : kQuiet);
    drawImage(painter, icon(), places.icon, quiet);
    if (programIcon && !programIcon->isNull())
        drawAligned(painter, *programIcon, places.programIcon.topLeft());
    if (showWindowIcon)
        drawImage(painter, documentImage(), places.windowIcon, tint);
    drawText(painter, places.text, text);
    drawImage(painter, isFrozen ? freezeImage() : freezeActionImage(), places.mark, tint);
    for (std::size_t i = 0; i < places.dots.size(); ++i) {
        const QColor color = TKLabelColorList::sharedColorList().colorForTag((*selectedTags)[qsizetype(i)]);
        drawColorDot(painter, places.dots[i], color, 1);
        if (color.alpha() > 0)
            drawRing(painter, places.dots[i], text.color);
    }
}
