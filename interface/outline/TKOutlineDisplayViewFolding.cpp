// SPDX-License-Identifier: MIT
// Expanding and collapsing the rows of an outline.
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/outline/TimeTreeModel.h"

void TKOutlineDisplayView::expandAllRows() {
    expandRows([](const QModelIndex&) { return true; });
}

void TKOutlineDisplayView::expandRows(const std::function<bool(const QModelIndex&)>& isWanted,
                                      OtherRows others) {
    if (!model())
        return;
    // With a layout pending, expanding only marks each row, and one layout handles them all.
    scheduleDelayedItemsLayout();
    expandBeneath({}, isWanted, others);
    executeDelayedItemsLayout();
}

void TKOutlineDisplayView::expandBeneath(const QModelIndex& parent,
                                         const std::function<bool(const QModelIndex&)>& isWanted,
                                         OtherRows others) {
    for (int row = 0; row < model()->rowCount(parent); ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        // Called for every row, because the caller may want to know which rows exist.
        const bool isToUnfold = isWanted(index);
        if (!model()->hasChildren(index))
            continue;
        if (isToUnfold && !isExpanded(index)) {
            if (model()->canFetchMore(index))
                model()->fetchMore(index);
            expand(index);
        }
        if (!isToUnfold && others == OtherRows::Fold)
            collapse(index);
        if (isExpanded(index))
            expandBeneath(index, isWanted, others);
    }
}

void TKOutlineDisplayView::collapseAllRows() {
    if (!model())
        return;
    // One by one, so that a signal is sent for each.
    scheduleDelayedItemsLayout();
    for (int row = model()->rowCount() - 1; row >= 0; --row)
        collapse(model()->index(row, 0));
    executeDelayedItemsLayout();
    // The view has finished collapsing.
    forgetFolded();
}

void TKOutlineDisplayView::toggleAllRows() {
    // The first row that can be expanded decides for all.
    for (int row = 0; model() && row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        if (!model()->hasChildren(index))
            continue;
        if (!isExpanded(index)) {
            expandAllRows();
            return;
        }
        break;
    }
    collapseAllRows();
}

void TKOutlineDisplayView::rowFolded(const QModelIndex& index) {
    if (const auto item = itemAt(index))
        Q_EMIT itemDidCollapse(item);
    if (!m_model)
        return;
    m_folded.emplace_back(index);
    // Later: the view is still collapsing rows.
    if (m_folded.size() == 1)
        QMetaObject::invokeMethod(this, &TKOutlineDisplayView::forgetFolded, Qt::QueuedConnection);
}

void TKOutlineDisplayView::forgetFolded() {
    for (const QPersistentModelIndex& folded : std::exchange(m_folded, {}))
        if (m_model && folded.isValid() && folded.model() == m_model && !isExpanded(folded))
            m_model->releaseChildren(folded);
}
