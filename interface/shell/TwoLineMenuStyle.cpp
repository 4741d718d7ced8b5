// SPDX-License-Identifier: MIT
#include "interface/shell/TwoLineMenuStyle.h"

#include "interface/outline/CutToWidth.h"
#include "interface/shell/TimerMenuItem.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace {

constexpr int kLeftMargin = 14;
// Room for the arrow of a submenu.
constexpr int kRightMargin = 30;
constexpr int kAir = 3;
constexpr int kIconSize = 16;
constexpr int kIconGap = 8;
constexpr int kWidestName = 420;
constexpr qreal kSmallerBy = 2;
constexpr qreal kSmallestPoints = 6;
constexpr qreal kDimmed = 0.65;

const QStyleOptionMenuItem* twoLines(const QStyleOption* option) {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    return item && item->text.contains(u'\n') ? item : nullptr;
}

// In the text of a menu, ampersands are doubled.
QString line(const QStyleOptionMenuItem& item, int number) {
    return item.text.section(u'\n', number, number).replace(QLatin1String("&&"), QLatin1String("&"));
}

// Where one entry of a menu has an icon, all names begin at the same place.
int textIndent(const QStyleOptionMenuItem& item) {
    return item.maxIconWidth > 0 ? kIconSize + kIconGap : 0;
}

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

QFont smaller(QFont font) {
    if (font.pointSizeF() > 0)
        font.setPointSizeF(std::max(kSmallestPoints, font.pointSizeF() - kSmallerBy));
    else
        font.setPixelSize(std::max(1, font.pixelSize() * 8 / 10));
    return font;
}

void drawName(QPainter& painter, const QRect& rect, const QString& name, qsizetype dimmedLength) {
    const QFontMetrics metrics = painter.fontMetrics();
    const QString shown = metrics.elidedText(cutToWidth(name, rect.width()), Qt::ElideRight, rect.width());
    const QString own = shown.left(name.size() - dimmedLength);
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, own);
    painter.setOpacity(kDimmed);
    painter.drawText(rect.adjusted(metrics.horizontalAdvance(own), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown.mid(own.size()));
    painter.setOpacity(1);
}

} // namespace

TwoLineMenuStyle::TwoLineMenuStyle()
    : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}

QSize TwoLineMenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                         const QWidget* widget) const {
    const auto* item = type == CT_MenuItem ? twoLines(option) : nullptr;
    if (!item)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    const QFontMetrics name(bold(item->font));
    const QFontMetrics time(smaller(item->font));
    const int width =
        std::max(std::min(kWidestName, name.horizontalAdvance(cutToWidth(line(*item, 0), kWidestName)) + 1),
                 time.horizontalAdvance(line(*item, 1)) + 1);
    return {kLeftMargin + textIndent(*item) + width + kRightMargin, name.height() + time.height() + 2 * kAir};
}

void TwoLineMenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const {
    const auto* item = element == CE_MenuItem ? twoLines(option) : nullptr;
    if (!item) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem frame(*item);
    frame.text.clear();
    frame.icon = {};
    QProxyStyle::drawControl(element, &frame, painter, widget);
    const auto* menu = qobject_cast<const QMenu*>(widget);
    const auto* timer = dynamic_cast<TimerMenuItem*>(menu ? menu->actionAt(item->rect.center()) : nullptr);
    painter->save();
    painter->setPen(
        item->palette.color(item->state & State_Selected ? QPalette::HighlightedText : QPalette::WindowText));
    painter->setFont(timer ? bold(item->font) : item->font);
    QRect rect = item->rect.adjusted(kLeftMargin, kAir, -kRightMargin, -kAir);
    item->icon.paint(painter, QStyle::alignedRect(item->direction, Qt::AlignLeft | Qt::AlignVCenter,
                                                  QSize(kIconSize, kIconSize), rect));
    rect = QStyle::visualRect(item->direction, rect, rect.adjusted(textIndent(*item), 0, 0, 0));
    const int nameHeight = painter->fontMetrics().height();
    drawName(*painter, QRect(rect.topLeft(), QSize(rect.width(), nameHeight)), line(*item, 0),
             timer ? timer->dimmedLength() : 0);
    painter->setFont(smaller(item->font));
    rect.setTop(rect.top() + nameHeight);
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line(*item, 1));
    painter->restore();
}
