// SPDX-License-Identifier: MIT
#include "interface/outline/OutlineCellDelegate.h"

#include "interface/outline/TimeTreeModel.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

namespace {

constexpr int kRowAir = 10;
constexpr int kTextMargin = 8;
// Of the dimmed part, 0 to 1.
constexpr qreal kDimmed = 0.55;

int digitWidth(const QFontMetrics& metrics) {
    int widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

// From the right, every digit in a box of the same width: not every font's digits are equally wide.
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

void drawName(QPainter& painter, const QRect& rect, const QStyleOptionViewItem& option, int dimmedLength) {
    const QString shown = option.fontMetrics.elidedText(option.text, Qt::ElideMiddle, rect.width());
    // Once the middle is gone nobody can tell where the dimmed part begins.
    const bool isWhole = shown == option.text;
    const QString name = isWhole ? shown.chopped(dimmedLength) : shown;
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
    if (!isWhole || dimmedLength == 0)
        return;
    QColor dimmed = painter.pen().color();
    dimmed.setAlphaF(float(kDimmed));
    painter.setPen(dimmed);
    painter.drawText(rect.adjusted(option.fontMetrics.horizontalAdvance(name), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown.last(dimmedLength));
}

} // namespace

QSize OutlineCellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {0, option.fontMetrics.height() + kRowAir};
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
    painter->save();
    painter->setClipRect(option.rect);
    painter->setFont(option.font);
    painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    if (index.column() == TimeTreeModel::TimeSpentColumn)
        drawTime(*painter, option.rect.adjusted(0, 0, -kTextMargin * 2, 0), option.fontMetrics, option.text);
    else
        drawName(*painter, option.rect.adjusted(kTextMargin / 2, 0, -kTextMargin, 0), option,
                 index.data(TimeTreeModel::kDimmedLengthRole).toInt());
    painter->restore();
}

QWidget* OutlineCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                           const QModelIndex&) const {
    auto* editor = new QLineEdit(parent);
    editor->setObjectName(QStringLiteral("programEditor"));
    editor->setAccessibleName(QStringLiteral("programEditor"));
    editor->setAutoFillBackground(true);
    return editor;
}

void OutlineCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                               const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

int OutlineCellDelegate::timeWidth(const QFontMetrics& metrics, int digits) {
    return digits * digitWidth(metrics) + 2 * metrics.horizontalAdvance(u':') + kTextMargin * 4;
}
