// SPDX-License-Identifier: MIT
// How the model's rows follow changes of the tree.
#include "interface/outline/TimeTreeRow.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace {

// If more rows move than this, one layout change is cheaper than telling each move.
constexpr std::size_t kMovesAtMost = 8;

// Marks a longest ascending subsequence of `ranks`: these rows can stay while the others move.
std::vector<bool> longestAscent(const std::vector<int>& ranks) {
    std::vector<int> tails;
    std::vector<int> before(ranks.size(), -1);
    const auto rankAt = [&](int place) { return ranks[std::size_t(place)]; };
    for (int i = 0; i < int(ranks.size()); ++i) {
        const auto tail = std::ranges::lower_bound(tails, rankAt(i), {}, rankAt);
        if (tail != tails.begin())
            before[std::size_t(i)] = *std::prev(tail);
        if (tail == tails.end())
            tails.push_back(i);
        else
            *tail = i;
    }
    std::vector<bool> stays(ranks.size(), false);
    for (int i = tails.empty() ? -1 : tails.back(); i >= 0; i = before[std::size_t(i)])
        stays[std::size_t(i)] = true;
    return stays;
}

template<class Rows>
std::vector<const TimeStoreItem*> itemsOf(const Rows& rows) {
    std::vector<const TimeStoreItem*> items;
    items.reserve(rows.size());
    for (const auto& row : rows)
        items.push_back(row->item.get());
    return items;
}

} // namespace

std::unique_ptr<TimeTreeModel::Row> TimeTreeModel::makeRow(std::shared_ptr<TimeStoreItem> item, Row& parent) {
    auto row = std::make_unique<Row>();
    row->item = std::move(item);
    row->parent = &parent;
    row->shownSecond = std::floor(row->item->activeTime());
    row->isLeaf = row->item->isLeaf();
    row->watching = row->item->node().observeEveryKey(
        [this, &shown = *row](const ObservedChange& change) { nodeChanged(shown, change.key); });
    return row;
}

void TimeTreeModel::synchronize() {
    // A view may call this while it is being told.
    if (m_isSynchronizing)
        return;
    m_isSynchronizing = true;
    m_isSynchronizeDue = false;
    if (std::exchange(m_root->isDirty, false))
        synchronizeChildren(*m_root, wantedItems());
    reorder(*m_root);
    for (const auto& app : m_root->children) {
        if (std::exchange(app->isDirty, false))
            synchronizeApplication(*app);
        reorder(*app);
    }
    m_isSynchronizing = false;
}

void TimeTreeModel::synchronizeApplication(Row& app) {
    const bool wasLeaf = app.isLeaf;
    const bool isLeaf = app.item->isLeaf();
    if (isLeaf) {
        releaseChildren(indexOf(app));
    } else if (app.isFetched) {
        synchronizeChildren(app, app.item->children().value_or(TimeStoreItem::Children()));
    }
    app.isLeaf = isLeaf;
    if (wasLeaf == isLeaf)
        return;
    const QModelIndex cell = indexOf(app);
    // A view shows the arrow for expanding only when rows are inserted.
    fetchMore(cell);
    Q_EMIT dataChanged(cell, cell, {});
}

void TimeTreeModel::synchronizeChildren(Row& parent, TimeStoreItem::Children wanted) {
    TimeStoreItem::Children added = keepWanted(parent, std::move(wanted));
    reorder(parent);
    insertChildren(parent, std::move(added));
}

TimeStoreItem::Children TimeTreeModel::keepWanted(Row& parent, TimeStoreItem::Children wanted) {
    std::unordered_map<const TimeStoreNode*, std::shared_ptr<TimeStoreItem>> items;
    items.reserve(wanted.size());
    for (const auto& item : wanted)
        items.emplace(&item->node(), item);
    std::unordered_set<const TimeStoreNode*> kept;
    int last = -1;
    for (int place = int(parent.children.size()) - 1; place >= -1; --place) {
        const auto found =
            place < 0 ? items.end() : items.find(&parent.children[std::size_t(place)]->item->node());
        const bool isGone = place >= 0 && found == items.end();
        if (isGone && last < 0)
            last = place;
        if (!isGone && last >= 0)
            removeRange(parent, place + 1, std::exchange(last, -1));
        if (found == items.end())
            continue;
        Row& row = *parent.children[std::size_t(place)];
        row.isDirty = row.isDirty || row.item != found->second;
        row.item = found->second;
        kept.insert(found->first);
    }
    std::erase_if(wanted, [&](const auto& item) { return kept.contains(&item->node()); });
    return wanted;
}

void TimeTreeModel::insertChildren(Row& parent, TimeStoreItem::Children items) {
    const std::vector<int> places = m_order.sortedPlaces([&] {
        std::vector<const TimeStoreItem*> plain;
        plain.reserve(items.size());
        for (const auto& item : items)
            plain.push_back(item.get());
        return plain;
    }());
    int at = 0;
    std::vector<std::unique_ptr<Row>> range;
    for (const int place : places) {
        std::shared_ptr<TimeStoreItem>& item = items[std::size_t(place)];
        const auto from = parent.children.begin() + at;
        const auto before =
            std::upper_bound(from, parent.children.end(), item, [&](const auto& added, const auto& row) {
                return m_order.isBefore(*added, *row->item);
            });
        if (before != from && !range.empty()) {
            const int count = int(range.size());
            const int next = int(before - parent.children.begin());
            insertRange(parent, at, std::exchange(range, {}));
            at = next + count;
        } else if (range.empty()) {
            at = int(before - parent.children.begin());
        }
        range.push_back(makeRow(std::move(item), parent));
    }
    if (!range.empty())
        insertRange(parent, at, std::move(range));
}

void TimeTreeModel::insertRange(Row& parent, int first, std::vector<std::unique_ptr<Row>> rows) {
    m_total.reset();
    beginInsertRows(indexOf(parent), first, first + int(rows.size()) - 1);
    parent.children.insert(parent.children.begin() + first, std::make_move_iterator(rows.begin()),
                           std::make_move_iterator(rows.end()));
    for (int place = first; place < int(parent.children.size()); ++place)
        parent.children[std::size_t(place)]->place = place;
    endInsertRows();
}

void TimeTreeModel::removeRange(Row& parent, int first, int last) {
    m_total.reset();
    beginRemoveRows(indexOf(parent), first, last);
    parent.children.erase(parent.children.begin() + first, parent.children.begin() + last + 1);
    for (int place = first; place < int(parent.children.size()); ++place)
        parent.children[std::size_t(place)]->place = place;
    endRemoveRows();
}

void TimeTreeModel::reorder(Row& parent) {
    if (!std::exchange(parent.isDisordered, false))
        return;
    const std::vector<int> places = m_order.sortedPlaces(itemsOf(parent.children));
    std::vector<int> ranks(places.size());
    for (std::size_t rank = 0; rank < places.size(); ++rank)
        ranks[std::size_t(places[rank])] = int(rank);
    const std::vector<bool> stays = longestAscent(ranks);
    if (std::size_t(std::ranges::count(stays, false)) > kMovesAtMost) {
        reorderAll({&parent});
        return;
    }
    std::vector<Row*> ordered;
    ordered.reserve(places.size());
    for (const int place : places)
        ordered.push_back(parent.children[std::size_t(place)].get());
    for (std::size_t rank = 0; rank < ordered.size(); ++rank)
        if (!stays[std::size_t(places[rank])]) {
            const int behind = rank == 0 ? 0 : ordered[rank - 1]->place + 1;
            const int from = ordered[rank]->place;
            moveRow(parent, from, from < behind ? behind - 1 : behind);
        }
}

void TimeTreeModel::moveRow(Row& parent, int from, int to) {
    if (from == to)
        return;
    const QModelIndex index = indexOf(parent);
    beginMoveRows(index, from, from, index, to > from ? to + 1 : to);
    const auto rows = parent.children.begin();
    if (to > from)
        std::rotate(rows + from, rows + from + 1, rows + to + 1);
    else
        std::rotate(rows + to, rows + from, rows + from + 1);
    for (int place = std::min(from, to); place <= std::max(from, to); ++place)
        parent.children[std::size_t(place)]->place = place;
    endMoveRows();
}

void TimeTreeModel::reorderAll(const std::vector<Row*>& parents) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    for (Row* parent : parents) {
        const std::vector<int> places = m_order.sortedPlaces(itemsOf(parent->children));
        std::vector<std::unique_ptr<Row>> ordered;
        ordered.reserve(places.size());
        for (const int place : places) {
            ordered.push_back(std::move(parent->children[std::size_t(place)]));
            ordered.back()->place = int(ordered.size()) - 1;
        }
        parent->children = std::move(ordered);
        parent->isDisordered = false;
    }
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& index : before)
        after << indexOf(*rowOf(index), index.column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void TimeTreeModel::refreshTimes(Row& parent) {
    m_total.reset();
    if (parent.children.empty())
        return;
    for (const auto& row : parent.children)
        row->shownSecond = std::floor(row->item->activeTime());
    parent.isDisordered = true;
    Q_EMIT dataChanged(indexOf(*parent.children.front(), TimeSpentColumn),
                       indexOf(*parent.children.back(), TimeSpentColumn), {Qt::DisplayRole});
}
