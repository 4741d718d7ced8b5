// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Draws the cells of the timer outline: rows with some space, the original name dimmed, and digits that keep
// their places while the seconds run.
class OutlineCellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    // The width of the widest time with so many digits.
    static int timeWidth(const QFontMetrics& metrics, int digits);
};
