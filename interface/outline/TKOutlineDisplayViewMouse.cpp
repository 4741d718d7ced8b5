// SPDX-License-Identifier: MIT
// What the pointer does in an outline.
#include "Classes/store/TimeStoreAppProxy.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/outline/TimeTreeModel.h"

#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kDraggedRowsShown = 6;
constexpr int kDragWidth = 320;
constexpr qreal kDragOpacity = 0.85;
constexpr int kDropLine = 2;

// The timer itself, if the row is a proxy for it.
std::shared_ptr<TimeStoreItem> timerOf(std::shared_ptr<TimeStoreItem> item) {
    if (const auto proxy = std::dynamic_pointer_cast<TimeStoreAppProxy>(item))
        return proxy->app();
    return item;
}

bool holds(const TimeStoreItem& item, const TimeStoreNode& node) {
    const auto children = item.children();
    return children &&
           std::ranges::any_of(*children, [&](const auto& child) { return &child->node() == &node; });
}

} // namespace

int TKOutlineDisplayView::heightOfRows() const {
    const QModelIndex top = indexAt(QPoint(columnViewportPosition(0), 0));
    return top.isValid() ? rowHeight(top) : 0;
}

int TKOutlineDisplayView::rowAtPoint(const QPoint& point) const {
    const int height = indexAt(point).isValid() ? heightOfRows() : 0;
    return height > 0 ? (point.y() + verticalOffset()) / height : -1;
}

QModelIndex TKOutlineDisplayView::indexOfRow(int row) const {
    return row < 0 ? QModelIndex() : indexAt(QPoint(columnViewportPosition(0), rectOfRow(row).center().y()));
}

QRect TKOutlineDisplayView::rectOfRow(int row) const {
    const int height = heightOfRows();
    return {0, row * height - verticalOffset(), viewport()->width(), height};
}

bool TKOutlineDisplayView::isHighlighted(const QRect& frame) const {
    return m_highlightedRow >= 0 && rectOfRow(m_highlightedRow).intersects(frame);
}

void TKOutlineDisplayView::setHighlightOnMouseOver(bool highlight) {
    m_highlightOnMouseOver = highlight;
    viewport()->setMouseTracking(highlight);
}

void TKOutlineDisplayView::setHighlightedRow(int row) {
    const int before = std::exchange(m_highlightedRow, row);
    if (before == row)
        return;
    // Only these two rows look different.
    for (const int changed : {before, row})
        if (changed >= 0)
            viewport()->update(rectOfRow(changed));
}

void TKOutlineDisplayView::rehighlightFromMouseMoved(const QPoint& globalPosition) {
    if (!highlightOnMouseOver())
        return;
    const QPoint point = viewport()->mapFromGlobal(globalPosition);
    setHighlightedRow(viewport()->rect().contains(point) ? rowAtPoint(point) : -1);
}

void TKOutlineDisplayView::mouseMoveEvent(QMouseEvent* event) {
    rehighlightFromMouseMoved(event->globalPosition().toPoint());
    // Pressing a freeze control does not start a drag.
    if (m_freezeRow < 0)
        QTreeView::mouseMoveEvent(event);
}

bool TKOutlineDisplayView::viewportEvent(QEvent* event) {
    // If the pointer moves to another part of the window, no row is highlighted any more; if it leaves the
    // window, the highlight stays.
    if (event->type() == QEvent::Leave && window()->geometry().contains(QCursor::pos()))
        rehighlightFromMouseMoved(QCursor::pos());
    return QTreeView::viewportEvent(event);
}

bool TKOutlineDisplayView::pressFreezeControl(const QMouseEvent& event) {
    const QPoint point = event.position().toPoint();
    const int row = rowAtPoint(point);
    m_freezeRow = -1;
    if (row < 0)
        return false;
    const QRect frame = frameOfCell(indexOfRow(row));
    QRect area = frame;
    area.setLeft(area.right() + 1 - TKTableLabelCell::freezeImageSize().width());
    if (!QStyle::visualRect(layoutDirection(), frame, area).contains(point))
        return false;
    m_freezeRow = row;
    return true;
}

void TKOutlineDisplayView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QTreeView::mousePressEvent(event);
        return;
    }
    if (pressFreezeControl(*event))
        return;
    if (rowAtPoint(event->position().toPoint()) < 0)
        redirectTarget().clearSelection();
    if (m_redirectToOutlineView && event->modifiers() == Qt::AltModifier)
        m_redirectToOutlineView->toggleAllRows();
    QTreeView::mousePressEvent(event);
}

QItemSelectionModel::SelectionFlags TKOutlineDisplayView::selectionCommand(const QModelIndex& index,
                                                                           const QEvent* event) const {
    if (selectionMode() != SingleSelection)
        return QTreeView::selectionCommand(index, event);
    // In the sidebar one row is always selected, because something must be shown.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::NoUpdate;
}

void TKOutlineDisplayView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second press of a double click on a freeze control is an ordinary press.
    if (event->button() != Qt::LeftButton || !pressFreezeControl(*event))
        QTreeView::mouseDoubleClickEvent(event);
}

void TKOutlineDisplayView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_freezeRow < 0 || event->button() != Qt::LeftButton ||
        !freeze(indexOfRow(std::exchange(m_freezeRow, -1))))
        QTreeView::mouseReleaseEvent(event);
}

bool TKOutlineDisplayView::freeze(const QModelIndex& row) {
    const std::shared_ptr<TimeStoreItem> item = itemAt(row);
    if (!item)
        return true;
    const std::shared_ptr<TimeStoreItem> timer = timerOf(item);
    if (!timer || timer->branched() || !m_owner.branchNode)
        return false;
    m_owner.branchNode(timer);
    // Freezing may have moved the row.
    if (m_model)
        m_model->synchronize();
    return editRowOf(timer->node());
}

bool TKOutlineDisplayView::editRowOf(const TimeStoreNode& node) {
    const std::function<bool(const QModelIndex&)> editBeneath = [&](const QModelIndex& parent) {
        for (int row = 0; row < model()->rowCount(parent); ++row) {
            const QModelIndex index = model()->index(row, 0, parent);
            const std::shared_ptr<TimeStoreItem> item = timerOf(itemAt(index));
            if (!item)
                continue;
            if (!isExpanded(index) && model()->hasChildren(index) && holds(*item, node))
                expand(index);
            else if (&item->node() == &node) {
                setCurrentIndex(index);
                scrollTo(index);
                return QTreeView::edit(index, AllEditTriggers, nullptr);
            }
            if (isExpanded(index) && editBeneath(index))
                return true;
        }
        return false;
    };
    return editBeneath({});
}

void TKOutlineDisplayView::startDrag(Qt::DropActions supportedActions) {
    const QModelIndexList rows = selectedRows();
    std::unique_ptr<QMimeData> written =
        m_owner.writeItems && !rows.isEmpty() ? m_owner.writeItems(rows) : nullptr;
    if (!written)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(written.release());
    drag->setPixmap(dragPixmap(rows));
    drag->exec(supportedActions,
               defaultDropAction() == Qt::IgnoreAction ? Qt::CopyAction : defaultDropAction());
}

void TKOutlineDisplayView::dragMoveEvent(QDragMoveEvent* event) {
    // Without this setting the view does not work out where the pointer is.
    setDropIndicatorShown(true);
    QTreeView::dragMoveEvent(event);
    const QModelIndex onto =
        dropIndicatorPosition() == OnItem ? indexAt(event->position().toPoint()) : QModelIndex();
    const bool isShownHere = m_owner.dropLine && event->isAccepted();
    showDropLine(isShownHere ? m_owner.dropLine(*event, onto) : std::nullopt);
}

void TKOutlineDisplayView::dragLeaveEvent(QDragLeaveEvent* event) {
    QTreeView::dragLeaveEvent(event);
    showDropLine(std::nullopt);
}

void TKOutlineDisplayView::dropEvent(QDropEvent* event) {
    showDropLine(std::nullopt);
    QTreeView::dropEvent(event);
}

void TKOutlineDisplayView::showDropLine(std::optional<int> row) {
    // Either the line or the frame, never both.
    setDropIndicatorShown(!row);
    if (std::exchange(m_shownDropLine, row) != row)
        viewport()->update();
}

void TKOutlineDisplayView::drawDropLine() {
    if (m_shownDropLine == kNowhere)
        return;
    const QModelIndex before = model()->index(*m_shownDropLine, 0);
    const QModelIndex last = model()->index(model()->rowCount() - 1, 0);
    const int y = before.isValid() ? visualRect(before).top() : visualRect(last).bottom() + 1;
    QPainter painter(viewport());
    painter.fillRect(QRect(0, y - kDropLine / 2, viewport()->width(), kDropLine),
                     palette().color(QPalette::Text));
}

QPixmap TKOutlineDisplayView::dragPixmap(const QModelIndexList& rows) const {
    const int height = heightOfRows();
    const int shown = int(std::min<qsizetype>(rows.size(), kDraggedRowsShown));
    const bool hasMore = rows.size() > shown;
    const QSize size(std::min(columnWidth(0), kDragWidth), height * (shown + (hasMore ? 1 : 0)));
    QPixmap pixmap(size * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(kDragOpacity);
    painter.fillRect(QRect(QPoint(), size), palette().base());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    for (int place = 0; place < shown; ++place) {
        option.rect = QRect(0, place * height, size.width(), height);
        itemDelegate()->paint(&painter, option, rows[place]);
    }
    painter.setPen(palette().color(QPalette::PlaceholderText));
    if (hasMore)
        painter.drawText(QRect(0, shown * height, size.width(), height), Qt::AlignCenter,
                         QStringLiteral("+ %1").arg(rows.size() - shown));
    return pixmap;
}
