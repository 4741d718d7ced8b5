// SPDX-License-Identifier: MIT
#include "interface/history/PictureTip.h"

#include "interface/history/PictureColors.h"
#include "interface/shell/PlainText.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kAir = 8;
// Between the tip and what it tells of.
constexpr int kDistance = 6;
constexpr int kWidest = 380;
// Between a line's text and its figure.
constexpr int kBetween = 16;
constexpr int kMostDetailLines = 4;

std::unique_ptr<QTextLayout> laidOut(const QString& text, const QFont& font, int width,
                                     Qt::LayoutDirection direction) {
    auto layout = std::make_unique<QTextLayout>(PlainText::cut(text, PlainText::kLongestTip), font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setAlignment((direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
    layout->setTextOption(option);
    layout->beginLayout();
    double y = 0;
    for (int count = 0; count < kMostDetailLines; ++count) {
        QTextLine line = layout->createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height();
    }
    layout->endLayout();
    return layout;
}

} // namespace

PictureTip::PictureTip(QWidget* over)
    : QWidget(over) {
    setObjectName(QStringLiteral("pictureTip"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void PictureTip::tell(const std::vector<Line>& lines, const QWidget& picture, const QRect& place, int x,
                      bool isBar) {
    if (lines.empty()) {
        hide();
        return;
    }
    setLayoutDirection(picture.layoutDirection());
    if (lines != m_lines || isHidden()) {
        m_lines = lines;
        lay();
        update();
    }
    const QPoint origin = picture.mapTo(parentWidget(), QPoint());
    QPoint at =
        isBar ? besideBar(place.translated(origin)) : belowOrAbove(place.translated(origin), x + origin.x());
    at.setX(std::clamp(at.x(), 2, std::max(2, parentWidget()->width() - width() - 2)));
    at.setY(std::clamp(at.y(), 2, std::max(2, parentWidget()->height() - height() - 2)));
    move(at);
    raise();
    show();
}

void PictureTip::lay() {
    const QFontMetrics metrics = fontMetrics();
    const int swatch = metrics.ascent() + 2;
    const int widest = std::min(kWidest, std::max(80, parentWidget()->width() - 2 * kAir)) - 2 * kAir;
    int width = 0;
    for (const Line& line : m_lines) {
        const int figure = line.figure.isEmpty() ? 0 : kBetween + metrics.horizontalAdvance(line.figure);
        width = std::max(width,
                         (line.color.isValid() ? swatch : 0) + figure + 2 +
                             metrics.horizontalAdvance(PlainText::cut(line.text, PlainText::kLongestEntry)));
        if (!line.detail.isEmpty())
            width = std::max(
                width, swatch +
                           metrics.horizontalAdvance(PlainText::cut(line.detail, PlainText::kLongestEntry)) +
                           2);
    }
    width = std::min(width, widest);
    m_laid.clear();
    int y = kAir - 2;
    for (const Line& line : m_lines) {
        m_laid.push_back({y, laidOut(line.detail, font(), width - swatch, layoutDirection())});
        y += lineHeight();
        if (!line.detail.isEmpty())
            y += int(std::ceil(m_laid.back().detail->boundingRect().height())) + 3;
    }
    resize(width + 2 * kAir, y + kAir - 2);
}

QPoint PictureTip::besideBar(const QRect& place) const {
    const bool isLeft = place.right() + kDistance + width() > parentWidget()->width();
    return {isLeft ? place.left() - kDistance - width() : place.right() + 1 + kDistance, place.top()};
}

QPoint PictureTip::belowOrAbove(const QRect& place, int x) const {
    const bool isAbove = place.bottom() + kDistance + height() > parentWidget()->height() &&
                         place.top() - kDistance - height() >= 0;
    return {x - width() / 2, isAbove ? place.top() - kDistance - height() : place.bottom() + 1 + kDistance};
}

void PictureTip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const QColor text = palette().color(QPalette::ToolTipText);
    QColor faint = text;
    faint.setAlphaF(0.75F);
    QColor frame = text;
    frame.setAlphaF(0.35F);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(frame);
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int swatch = fontMetrics().ascent() + 2;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Line& line = m_lines[i];
        const QRect row(kAir, m_laid[i].top, width() - 2 * kAir, lineHeight());
        const auto placed = [&](const QRect& rect) {
            return QStyle::visualRect(layoutDirection(), row, rect);
        };
        if (line.color.isValid()) {
            const int size = swatch - 5;
            const QRect box(row.left(), row.top() + (row.height() - size) / 2, size, size);
            painter.fillRect(placed(box), PictureColors::outline(line.color, palette()));
            painter.fillRect(placed(box).adjusted(1, 1, -1, -1), line.color);
        }
        painter.setPen(text);
        const int figure =
            line.figure.isEmpty() ? 0 : fontMetrics().horizontalAdvance(line.figure) + kBetween;
        const int start = line.color.isValid() ? swatch : 0;
        const QString shown = fontMetrics().elidedText(PlainText::cut(line.text, PlainText::kLongestEntry),
                                                       Qt::ElideRight, row.width() - start - figure);
        const int flags = Qt::AlignVCenter | Qt::TextSingleLine;
        painter.drawText(placed(row.adjusted(start, 0, -figure, 0)),
                         flags | (isMirrored ? Qt::AlignRight : Qt::AlignLeft), shown);
        painter.drawText(row, flags | (isMirrored ? Qt::AlignLeft : Qt::AlignRight), line.figure);
        painter.setPen(faint);
        const QRect below = placed(row.adjusted(swatch, 0, 0, 0));
        m_laid[i].detail->draw(&painter, QPointF(below.left(), row.top() + lineHeight()));
    }
}
