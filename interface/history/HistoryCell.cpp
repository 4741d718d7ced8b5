// SPDX-License-Identifier: MIT
#include "interface/history/HistoryCell.h"

#include "interface/history/HistoryModel.h"
#include "interface/history/PictureColors.h"
#include "interface/outline/CutToWidth.h"
#include "interface/shell/Contrast.h"
#include "interface/shell/ProgramIcons.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kRowAir = 10;
constexpr int kBarMargin = 4;
// Between the time and the bar.
constexpr int kBarDistance = 14;
constexpr double kBarStrength = 0.45;
// Of the rows below another one, which share its colour.
constexpr double kPartStrength = 0.22;
constexpr int kIconSize = 16;
constexpr double kDotSize = 10;
const QString kEdge = QStringLiteral("\u00A0\u00A0");

} // namespace

QSize HistoryCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {0, std::max(option.fontMetrics.height(), kIconSize) + kRowAir};
}

void HistoryCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    if (index.column() == HistoryModel::ShareColumn && !option.state.testFlag(QStyle::State_Selected))
        drawBar(*painter, option, index);
    QStyledItemDelegate::paint(painter, option, index);
}

void HistoryCell::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool isTop = !index.parent().isValid();
    option->textElideMode = elisionOf(option->text);
    // Not at the very edge of the window.
    if (index.column() == HistoryModel::ShareColumn)
        option->text += kEdge;
    const bool isProgram = !index.data(HistoryModel::ProgramRole).toString().isEmpty();
    if (index.column() != HistoryModel::NameColumn || !(isTop || isProgram) || (isProgram && !m_icons))
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(kIconSize, kIconSize);
    const QPixmap picture = pictureOf(*option, index);
    // A selection does not wash the picture over.
    option->icon = QIcon(picture);
    option->icon.addPixmap(picture, QIcon::Selected);
}

QColor HistoryCell::colorOf(const QModelIndex& index) const {
    const QModelIndex top = index.parent().isValid() ? index.parent() : index;
    const QString name = top.siblingAtColumn(HistoryModel::NameColumn).data(Qt::EditRole).toString();
    return m_colorOf ? m_colorOf(name) : QColor();
}

void HistoryCell::drawBar(QPainter& painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    const double share = std::clamp(index.data(HistoryModel::ShareRole).toDouble(), 0.0, 1.0);
    QRect bar = option.rect.adjusted(kBarDistance, kBarMargin, -kBarMargin, -kBarMargin);
    bar.setWidth(std::max(1, int(std::lround(bar.width() * share))));
    QColor color = colorOf(index);
    if (!color.isValid())
        color = (option.widget ? option.widget->palette() : option.palette).color(QPalette::Highlight);
    const QColor ground = option.palette.color(QPalette::Base);
    painter.save();
    // The length is seen by the line around it, however pale the fill is.
    painter.setPen(
        Contrast::readable(color, option.palette.color(QPalette::Text), ground, Contrast::kOfMarks));
    color.setAlphaF(float(index.parent().isValid() ? kPartStrength : kBarStrength));
    painter.setBrush(color);
    painter.drawRect(QStyle::visualRect(option.direction, option.rect, bar).adjusted(0, 0, -1, -1));
    painter.restore();
}

// Transparent where there is nothing to show, so that all names begin at the same place.
QPixmap HistoryCell::pictureOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const double scale = option.widget ? option.widget->devicePixelRatioF() : 1;
    const QString program = index.data(HistoryModel::ProgramRole).toString();
    if (!program.isEmpty() && m_icons)
        if (QPixmap icon = m_icons->icon(program, kIconSize, scale); !icon.isNull())
            return icon;
    const int pixels = int(std::lround(kIconSize * scale));
    QPixmap picture(pixels, pixels);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    const QColor color = program.isEmpty() ? colorOf(index) : QColor();
    if (!color.isValid())
        return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(PictureColors::outline(color, option.palette));
    painter.setBrush(color);
    const double margin = (kIconSize - kDotSize) / 2;
    painter.drawEllipse(QRectF(margin, margin, kDotSize, kDotSize));
    return picture;
}
