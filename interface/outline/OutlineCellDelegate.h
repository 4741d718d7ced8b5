// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Draws the cells of the timer outline: rows with air, the replaced name dimmed, and digits that stand still
// while the seconds run.
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

    // How wide the widest time of so many digits is drawn in `font`.
    static int timeWidth(const QFontMetrics& metrics, int digits);
};
