// SPDX-License-Identifier: MIT
#include "interface/outline/TimeTreeModel.h"

#include "interface/outline/OutlineRole.h"
#include "interface/outline/TKAppDisplayFormatter.h"
#include "interface/outline/TimeTreeRow.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <unordered_set>

TimeTreeModel::TimeTreeModel(std::optional<Source> source, RunLoop& runLoop, Rename rename, Marks marks,
                             ShownName shownName)
    : m_runLoop(runLoop)
    , m_rename(std::move(rename))
    , m_marks(std::move(marks))
    , m_shownName(std::move(shownName))
    , m_root(std::make_unique<Row>()) {
    m_root->isLeaf = false;
    m_root->isFetched = true;
    setSource(std::move(source));
}

TimeTreeModel::~TimeTreeModel() = default;

TimeTreeModel::Source TimeTreeModel::sourceOf(TimeTracker& tracker) {
    return {tracker, kTimeSetKey, [&tracker] { return tracker.timeSet(); }};
}

TimeTreeModel::Source TimeTreeModel::sourceOf(std::shared_ptr<TimeStoreNode> node) {
    TimeStoreNode& observed = *node;
    return {observed, kChildrenKey,
            [node = std::move(node)] { return node->children().value_or(TimeStoreItem::Children()); }};
}

void TimeTreeModel::setSource(std::optional<Source> source) {
    m_sourceChanges = {};
    m_source = std::move(source);
    m_root->isDirty = true;
    if (m_source)
        m_sourceChanges = m_source->observed.get().observe(m_source->key, [this](const ObservedChange&) {
            m_root->isDirty = true;
            scheduleSynchronize();
        });
    if (!m_isLive) {
        m_isSynchronizeDue = true;
        return;
    }
    // If only a few rows are in both lists, finding them would cost more than showing the new list.
    if (!m_root->children.empty() && !isMostlyShown(wantedItems()))
        removeRange(*m_root, 0, int(m_root->children.size()) - 1);
    synchronize();
}

bool TimeTreeModel::isMostlyShown(const TimeStoreItem::Children& items) const {
    std::unordered_set<const TimeStoreNode*> shown;
    shown.reserve(m_root->children.size());
    for (const auto& row : m_root->children)
        shown.insert(&row->item->node());
    const auto kept = std::size_t(
        std::ranges::count_if(items, [&](const auto& item) { return shown.contains(&item->node()); }));
    return 2 * kept >= std::max(items.size(), shown.size());
}

TimeStoreItem::Children TimeTreeModel::wantedItems() const {
    return m_source ? m_source->items() : TimeStoreItem::Children();
}

TimeTreeModel::Row* TimeTreeModel::rowOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Row*>(index.internalPointer()) : m_root.get();
}

QModelIndex TimeTreeModel::indexOf(const Row& row, int column) const {
    return row.parent ? createIndex(row.place, column, &row) : QModelIndex();
}

std::shared_ptr<TimeStoreItem> TimeTreeModel::item(const QModelIndex& index) const {
    return index.isValid() && index.model() == this ? rowOf(index)->item : nullptr;
}

QModelIndex TimeTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const Row& above = *rowOf(parent);
    if (parent.column() > 0 || row < 0 || row >= int(above.children.size()) || column < 0 ||
        column >= ColumnCount)
        return {};
    return createIndex(row, column, above.children[std::size_t(row)].get());
}

QModelIndex TimeTreeModel::parent(const QModelIndex& child) const {
    return child.isValid() ? indexOf(*rowOf(child)->parent) : QModelIndex();
}

int TimeTreeModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : int(rowOf(parent)->children.size());
}

int TimeTreeModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

bool TimeTreeModel::hasChildren(const QModelIndex& parent) const {
    const Row& row = *rowOf(parent);
    return parent.column() <= 0 && (row.parent ? !row.isLeaf : !row.children.empty());
}

bool TimeTreeModel::canFetchMore(const QModelIndex& parent) const {
    const Row& row = *rowOf(parent);
    return parent.column() <= 0 && !row.isLeaf && !row.isFetched;
}

void TimeTreeModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent))
        return;
    Row& row = *rowOf(parent);
    row.isFetched = true;
    insertChildren(row, row.item->children().value_or(TimeStoreItem::Children()));
}

void TimeTreeModel::releaseChildren(const QModelIndex& parent) {
    Row& row = *rowOf(parent);
    if (!row.parent || !row.isFetched)
        return;
    if (!row.children.empty())
        removeRange(row, 0, int(row.children.size()) - 1);
    row.isFetched = false;
}

QVariant TimeTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const TimeStoreItem& item = *rowOf(index)->item;
    if (index.column() == TimeSpentColumn) {
        if (role == Qt::DisplayRole)
            return item.activeTimeString();
        if (role == OutlineRole::Item)
            return QVariant::fromValue(rowOf(index)->item);
        if (role == OutlineRole::Share)
            return share(*rowOf(index));
        return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return shownName(*rowOf(index));
    case Qt::ToolTipRole:
        return PlainText::toolTip(TKAppDisplayFormatter::stringForObjectValue(item.renamedNameFormatted()));
    case Qt::EditRole:
        return TKAppDisplayFormatter::editingStringForObjectValue(item.renamedNameFormatted());
    case Qt::AccessibleTextRole:
        return accessibleText(*rowOf(index));
    case OutlineRole::DimmedLength:
        return int(TKAppDisplayFormatter::dimmedLength(item.renamedNameFormatted()));
    case OutlineRole::Item:
        return QVariant::fromValue(rowOf(index)->item);
    default:
        return {};
    }
}

QString TimeTreeModel::shownName(const Row& row) const {
    return m_shownName ? m_shownName(*row.item, row.parent->item.get())
                       : TKAppDisplayFormatter::stringForObjectValue(row.item->renamedNameFormatted());
}

QVariant TimeTreeModel::share(const Row& row) const {
    if (!m_total) {
        m_total = 0;
        for (const auto& top : m_root->children)
            *m_total += top->item->activeTime();
    }
    return *m_total > 0 ? QVariant(row.item->activeTime() / *m_total) : QVariant();
}

QString TimeTreeModel::accessibleText(const Row& row) const {
    TimeStoreItem& item = *row.item;
    // For screen readers: the name, the time, and whatever only a picture shows.
    QStringList texts{shownName(row), item.activeTimeString()};
    if (m_marks)
        texts << m_marks(item, row.parent == m_root.get());
    return texts.join(QStringLiteral(", "));
}

bool TimeTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || index.column() != ProgramColumn || !item(index))
        return false;
    m_rename(item(index), value.toString());
    return true;
}

QVariant TimeTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return section == ProgramColumn ? localized("Program") : localized("Time Spent");
    if (role == Qt::TextAlignmentRole)
        return section == ProgramColumn ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                                        : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags TimeTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Row& row = *rowOf(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    if (index.column() == ProgramColumn && row.item->renamedNameEditable())
        flags |= Qt::ItemIsEditable;
    if (row.parent != m_root.get())
        flags |= Qt::ItemNeverHasChildren;
    return flags;
}

void TimeTreeModel::sort(int column, Qt::SortOrder order) {
    // -1 means no sorting: keeps the order as it is.
    if (column < 0)
        return;
    m_order.set(column == TimeSpentColumn ? TimeTreeOrder::By::Time : TimeTreeOrder::By::Name, order);
    std::vector<Row*> parents{m_root.get()};
    for (const auto& row : m_root->children)
        if (row->children.size() > 1)
            parents.push_back(row.get());
    reorderAll(parents);
}

void TimeTreeModel::nodeChanged(Row& row, ObservedKey key) {
    if (key == kActiveTimeStringKey) {
        timeChanged(row);
    } else if (key == kNameKey || key == kSortNameKey) {
        nameChanged(row);
    } else if (key == kChildrenKey && row.parent == m_root.get()) {
        row.isDirty = true;
        scheduleSynchronize();
    }
}

void TimeTreeModel::timeChanged(Row& row) {
    if (!m_isLive) {
        m_isTimeStale = true;
        return;
    }
    const double second = std::floor(row.item->activeTime());
    if (second == row.shownSecond)
        return;
    row.shownSecond = second;
    m_total.reset();
    const QModelIndex cell = indexOf(row, TimeSpentColumn);
    Q_EMIT dataChanged(cell, cell, {Qt::DisplayRole});
    if (isOutOfPlace(row)) {
        row.parent->isDisordered = true;
        scheduleSynchronize();
    }
}

void TimeTreeModel::nameChanged(Row& row) {
    // If a window gets the name of another one, that one's row goes.
    if (row.parent != m_root.get())
        row.parent->isDirty = true;
    row.parent->isDisordered = true;
    scheduleSynchronize();
    if (!m_isLive)
        return;
    const QModelIndex cell = indexOf(row);
    Q_EMIT dataChanged(cell, cell, {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole});
}

bool TimeTreeModel::isOutOfPlace(const Row& row) const {
    const auto& rows = row.parent->children;
    const auto place = std::size_t(row.place);
    return (place > 0 && m_order.isBefore(*row.item, *rows[place - 1]->item)) ||
           (place + 1 < rows.size() && m_order.isBefore(*rows[place + 1]->item, *row.item));
}

void TimeTreeModel::scheduleSynchronize() {
    if (m_isSynchronizeDue)
        return;
    m_isSynchronizeDue = true;
    if (!m_isLive)
        return;
    m_runLoop.performSoon([self = QPointer(this)] {
        if (self && self->m_isLive)
            self->synchronize();
    });
}

void TimeTreeModel::setLive(bool isLive) {
    if (std::exchange(m_isLive, isLive) == isLive || !isLive)
        return;
    if (m_isTimeStale) {
        m_isTimeStale = false;
        refreshTimes(*m_root);
        for (const auto& app : m_root->children)
            refreshTimes(*app);
        m_isSynchronizeDue = true;
    }
    if (m_isSynchronizeDue)
        synchronize();
}
