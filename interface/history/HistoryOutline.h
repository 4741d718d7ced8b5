// SPDX-License-Identifier: MIT
#pragma once

#include "interface/history/HistoryForms.h"
#include "interface/history/HistoryModel.h"

#include <QSortFilterProxyModel>
#include <QTreeView>

class HistoryCell;
class ProgramIcons;

// The outline of a range: its programs or projects, with titles or programs below, sorted by any column, those with
// less time than the cut-off left out.
class HistoryOutline : public QTreeView {
    Q_OBJECT
public:
    explicit HistoryOutline(QWidget* parent = nullptr);
    ~HistoryOutline() override;

    HistoryModel& rows() { return m_rows; }
    // Takes widths and order from a header's saved state. Columns too narrow to be read become wider.
    void restoreColumns(const QByteArray& state);
    // Null for none, as before it is called. They outlive the outline.
    void setIcons(ProgramIcons* icons);
    // The colours of the picture, by the name of a top row; an invalid one for none.
    void setColors(std::function<QColor(const QString& name)> colorOf);
    // Another range, search or project is asked for: parts of a longer range must be asked for again.
    void forgetParts();
    // Milliseconds.
    void setCutoff(qint64 length);
    // Selects the top row of this name, and scrolls to it. Does nothing if there is none.
    void choose(const QString& name);
    // Of the selected rows, without those whose parent is selected as well, in milliseconds; absent when nothing is
    // selected.
    std::optional<qint64> selectedLength() const;
    // Puts the selected rows, or all when none is, on the clipboard, with the times that are shown. Dragging them gives
    // the same. Without any rows the clipboard stays as it is.
    void copy() const;
    // The same rows as a table with a heading, by RFC 4180, in UTF-8.
    QByteArray csv() const;
    // Shown while there are no rows.
    void setInvitation(const QString& text);
    const QString& invitation() const { return m_invitation; }

Q_SIGNALS:
    void selectionDidChange();

protected:
    void paintEvent(QPaintEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
    void changeEvent(QEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    class Order;
    using Line = HistoryForms::Line;

    // What is copied or exported, from top to bottom. Their sum is that of the rows: in place of an expanded row
    // stand its parts and what they leave over.
    std::vector<Line> lines(bool isSelectedOnly) const;
    QStringList heads() const;
    void addLines(const QModelIndex& parent, bool isSelectedOnly, std::vector<Line>& lines) const;

    // Gives the columns of numbers the room that they need in the font.
    void fitColumns();

    HistoryModel m_rows;
    std::unique_ptr<Order> m_order;
    HistoryCell* m_cells;
    QMetaObject::Connection m_iconsFound;
    QString m_invitation;
    // The arrow of a selected row is drawn.
    mutable bool m_isOnSelection = false;
};
