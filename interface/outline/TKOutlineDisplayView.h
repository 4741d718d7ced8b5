// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"
#include "interface/outline/SteadyScroll.h"
#include "interface/outline/TKTableLabelCell.h"

#include <QTreeView>

#include <functional>

class ProgramIcons;
class QMimeData;
class TimeTreeModel;

// An outline of timers or of projects. It draws and forwards: whoever it serves deletes, freezes and copies,
// and renaming goes through the model. Rows are numbered from 0, from top to bottom, including expanded
// children.
class TKOutlineDisplayView : public QTreeView {
    Q_OBJECT
public:
    static constexpr int kNowhere = -1;

    // What the view needs of whom it serves. Each may be missing.
    struct Owner {
        // What the cells of the first column show besides their text.
        std::function<TKTableLabelCell(const QModelIndex& row)> dataCell = {};
        // Freezes a timer.
        std::function<void(const std::shared_ptr<TimeStoreItem>& item)> branchNode = {};
        // Deletes the selected rows. Without it nothing can be deleted.
        std::function<void(bool forceDelete)> deleteKey = {};
        // Makes the data of a copy or a drag from rows, given from top to bottom; may answer null for none.
        // Without it rows cannot be copied or dragged.
        std::function<std::unique_ptr<QMimeData>(const QModelIndexList& rows)> writeItems = {};
        // Where to draw the line for a row that is dragged over `onto` (invalid when beside the rows): before
        // this row, or kNowhere if it cannot be dropped. Absent for a drop that does not go between rows.
        // Without it a frame is drawn around the row below the pointer.
        std::function<std::optional<int>(const QDropEvent& dragged, const QModelIndex& onto)> dropLine = {};
        // The text shown while there are no rows; asked for only then.
        std::function<QString()> invitation = {};
    };

    explicit TKOutlineDisplayView(QWidget* parent = nullptr);

    // REQUIRES: it serves nobody yet.
    void serve(Owner owner);

    // Shows timers. The model must outlive the view or be replaced first. The rows keep their order.
    void setTimeModel(TimeTreeModel& model);
    bool offersDelete() const { return bool(m_owner.deleteKey); }
    // The view in which "select none" and "expand all" take effect. Null for this view.
    void setRedirectToOutlineView(TKOutlineDisplayView* view) { m_redirectToOutlineView = view; }
    // Draws the icons of programs before their names; null for none, as before it is called. They outlive the view.
    void setIcons(ProgramIcons* icons);
    // Draws a bar behind each time, as long as its share. Without it there are none.
    void setShareBars(bool areShown);
    bool hasShareBars() const { return m_hasShareBars; }
    // The width that the user has given to the column of times; absent while it fits its texts.
    std::optional<int> chosenTimeWidth() const { return m_chosenTimeWidth; }
    // A width in which no time could be read is not taken.
    void setChosenTimeWidth(std::optional<int> width);
    // The invitation may have changed: lets assistive programs read it.
    void readOutInvitation();

    void copy();
    // The commands `delete:` and `forceDelete:`.
    void deleteRows() { askToDelete(false); }
    void forceDelete() { askToDelete(true); }
    void editName();

    // Highlights the row under the pointer.
    void setHighlightOnMouseOver(bool highlight);
    bool highlightOnMouseOver() const { return m_highlightOnMouseOver; }
    // The row that was last under the pointer; -1 for none. It stays when the pointer leaves the view.
    int highlightedRow() const { return m_highlightedRow; }
    void setHighlightedRow(int row);
    // The pointer has moved.
    void rehighlightFromMouseMoved(const QPoint& globalPosition);

    // With all descendants.
    void expandAllRows();
    // With all descendants.
    void collapseAllRows();
    enum class OtherRows { Stay, Fold };
    // Expands all rows for which `isWanted` answers true, from top to bottom, including rows that appear by
    // that. Does not expand their children by itself. Calls `isWanted` for every visible row. Takes one
    // layout.
    void expandRows(const std::function<bool(const QModelIndex& row)>& isWanted,
                    OtherRows others = OtherRows::Stay);

    // From top to bottom.
    QModelIndexList selectedRows() const;
    // The timers of the selected rows, from top to bottom.
    TimeStoreItem::Children selectedItems() const;
    // Those of all top rows.
    TimeStoreItem::Children topItems() const;
    // Null for a row without a timer.
    static std::shared_ptr<TimeStoreItem> itemAt(const QModelIndex& row);

    // `point` is in the viewport's coordinates.
    int rowAtPoint(const QPoint& point) const;
    QModelIndex indexOfRow(int row) const;
    QRect rectOfRow(int row) const;
    // Reaches to the column's right edge, however far the row is indented.
    QRect frameOfCell(const QModelIndex& row) const { return visualRect(row.siblingAtColumn(0)); }
    // What the cell shows, and whether its row is highlighted.
    TKTableLabelCell dataCell(const QModelIndex& row) const;
    bool isHighlighted(const QRect& frame) const;
    // The picture at the pointer while these rows are dragged.
    QPixmap dragPixmap(const QModelIndexList& rows) const;

Q_SIGNALS:
    void selectionDidChange();
    // The row of a timer was expanded or collapsed, by the user or by the program.
    void itemDidExpand(const std::shared_ptr<TimeStoreItem>& item);
    void itemDidCollapse(const std::shared_ptr<TimeStoreItem>& item);
    // The user asks for a context menu.
    void menuRequested(const QPoint& globalPosition);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void doItemsLayout() override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
    void changeEvent(QEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    TKOutlineDisplayView& redirectTarget() {
        return m_redirectToOutlineView ? *m_redirectToOutlineView : *this;
    }
    void askToDelete(bool forceDelete);
    void deselectAndTell();
    bool pressFreezeControl(const QMouseEvent& event);
    bool freeze(const QModelIndex& row);
    bool editRowOf(const TimeStoreNode& node);
    void toggleAllRows();
    void expandBeneath(const QModelIndex& parent, const std::function<bool(const QModelIndex&)>& isWanted,
                       OtherRows others);
    int heightOfRows() const;
    void fitTimeColumn();
    int leastTimeWidth() const;
    void rowFolded(const QModelIndex& index);
    void forgetFolded();
    // Empty while there are rows.
    QString shownInvitation() const;
    void drawInvitation(const QString& text);
    void showDropLine(std::optional<int> row);
    void drawDropLine();

    TimeTreeModel* m_model = nullptr;
    Owner m_owner;
    bool m_isServing = false;
    // The line is drawn before this row.
    std::optional<int> m_shownDropLine;
    TKOutlineDisplayView* m_redirectToOutlineView = nullptr;
    ProgramIcons* m_icons = nullptr;
    QMetaObject::Connection m_iconsFound;
    bool m_hasShareBars = false;
    std::optional<int> m_chosenTimeWidth;
    // The column of times is being fitted, and not dragged by the user.
    bool m_isFitting = false;
    SteadyScroll m_steadyScroll{*this};
    std::vector<QPersistentModelIndex> m_folded;
    int m_highlightedRow = -1;
    // The row whose freeze control is held down; -1 for none.
    int m_freezeRow = -1;
    bool m_highlightOnMouseOver = false;
    // The arrow of a selected row is drawn.
    mutable bool m_isOnSelection = false;
};
