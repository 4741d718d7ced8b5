// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStyledItemDelegate>

#include <functional>

class ProgramIcons;

// The cells of the history's outline: programs with their icons, projects with a dot, and behind each share a bar as
// long, both in the colour that the picture above has for the row.
class HistoryCell : public QStyledItemDelegate {
    Q_OBJECT
public:
    // A row's colour by the name of its program or project; an invalid one for none.
    using ColorOf = std::function<QColor(const QString& name)>;

    using QStyledItemDelegate::QStyledItemDelegate;

    // Null for none, as before it is called. They outlive the cells.
    void setIcons(ProgramIcons* icons) { m_icons = icons; }
    void setColors(ColorOf colorOf) { m_colorOf = std::move(colorOf); }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    QColor colorOf(const QModelIndex& index) const;
    void drawBar(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    QPixmap pictureOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    ProgramIcons* m_icons = nullptr;
    ColorOf m_colorOf;
};
