// SPDX-License-Identifier: MIT
#include "interface/outline/OutlineCellDelegate.h"

#include "interface/outline/OutlineRole.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/outline/TimeTreeModel.h"
#include "interface/shell/Contrast.h"
#include "interface/shell/Named.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kRowAir = 10;
constexpr int kIconAir = 4;
constexpr int kTextMargin = 8;
constexpr int kBarAir = 3;
constexpr int kLineHeight = 2;
// The opacity of bars, and of those of rows below another one. Times must stay easy to read on them.
constexpr float kBarStrength = 0.20F;
constexpr float kPartStrength = 0.11F;

int digitWidth(const QFontMetrics& metrics) {
    int widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

// From the right, each digit in a box of the same width, because in some fonts digits differ in width.
void drawTime(QPainter& painter, const QRect& rect, const QFontMetrics& metrics, const QString& text) {
    const int box = digitWidth(metrics);
    int right = rect.right() + 1;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const int advance = metrics.horizontalAdvance(text[i]);
        const int width = text[i].isDigit() ? box : advance;
        right -= width;
        painter.drawText(QRect(right + (width - advance) / 2, rect.top(), advance + 2, rect.height()),
                         Qt::AlignVCenter | Qt::TextSingleLine, QString(text[i]));
    }
}

void drawShare(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const double share = index.data(OutlineRole::Share).toDouble();
    QRect bar = option.rect.adjusted(kBarAir, kBarAir, -kBarAir, -kBarAir);
    bar.setWidth(int(std::lround(bar.width() * std::clamp(share, 0.0, 1.0))));
    if (bar.width() < 1)
        return;
    // The option's is paler where the keys do not go.
    QColor color = (option.widget ? option.widget->palette() : option.palette).color(QPalette::Highlight);
    // The fill must be pale, so that the time is read on it: the length is seen by the line below.
    const QColor line = Contrast::readable(color, option.palette.color(QPalette::Text),
                                           option.palette.color(QPalette::Base), Contrast::kOfMarks);
    color.setAlphaF(index.parent().isValid() ? kPartStrength : kBarStrength);
    const QRect place = QStyle::visualRect(option.direction, option.rect, bar);
    painter.fillRect(place, color);
    painter.fillRect(QRect(place.left(), place.bottom() - kLineHeight + 1, place.width(), kLineHeight), line);
}

} // namespace

QSize OutlineCellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {0, std::max(option.fontMetrics.height() + kRowAir, TKTableLabelCell::kIconSize + kIconAir)};
}

void OutlineCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& plain,
                                const QModelIndex& index) const {
    QStyleOptionViewItem option = plain;
    initStyleOption(&option, index);
    const QWidget* widget = option.widget;
    const QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, widget);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor color = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    painter->save();
    painter->setClipRect(option.rect);
    const auto* view = qobject_cast<const TKOutlineDisplayView*>(widget);
    const bool isTime = index.column() == TimeTreeModel::TimeSpentColumn;
    if (isTime && !isSelected && view && view->hasShareBars())
        drawShare(*painter, option, index);
    painter->setFont(option.font);
    painter->setPen(color);
    if (isTime) {
        // Below a header's text, which has space for its arrow.
        const int margin = view && view->isHeaderHidden() ? kTextMargin : 2 * kTextMargin;
        drawTime(*painter, option.rect.adjusted(0, 0, -margin, 0), option.fontMetrics, option.text);
    } else if (view)
        view->dataCell(index).drawWithFrame(*painter, option.rect, view->isHighlighted(option.rect),
                                            {.text = option.text,
                                             .dimmedLength = index.data(OutlineRole::DimmedLength).toInt(),
                                             .font = option.font,
                                             .color = color,
                                             .isOnHighlight = isSelected});
    painter->restore();
}

QWidget* OutlineCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                           const QModelIndex&) const {
    auto* editor = new QLineEdit(parent);
    named(editor, QStringLiteral("programEditor"), localized("Name"));
    editor->setAutoFillBackground(true);
    return editor;
}

void OutlineCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                               const QModelIndex& index) const {
    const auto* view = qobject_cast<const TKOutlineDisplayView*>(option.widget);
    const QRect text =
        view ? view->dataCell(index).layout(option.rect, false).text.toAlignedRect() : option.rect;
    const QRect rect = QStyle::visualRect(option.direction, option.rect, text);
    // Otherwise the view would make all rows as high as an editor.
    editor->setMaximumHeight(rect.height());
    editor->setGeometry(rect);
}

int OutlineCellDelegate::timeWidth(const QFontMetrics& metrics, int digits) {
    return digits * digitWidth(metrics) + 2 * metrics.horizontalAdvance(u':') + kTextMargin * 4;
}
