// SPDX-License-Identifier: MIT
#include "interface/history/HistoryModel.h"

#include "Classes/engine/TimeTracker.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/text/ShownTitle.h"

#include <QHash>
#include <QLocale>

struct HistoryModel::Row {
    QString name;
    qint64 length = 0;
    // Null for the root, which is above the top rows.
    Row* parent = nullptr;
    Rows rows{};
    bool arePartsKnown = true;
    bool isNamedByHand = false;
};

HistoryModel::HistoryModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(new Row) {}

HistoryModel::~HistoryModel() = default;

void HistoryModel::show(const std::vector<RangeAnswer::Entry>& entries, qint64 total, bool arePartsAsked) {
    m_total = total;
    if (std::exchange(m_arePartsAsked, arePartsAsked) != arePartsAsked)
        forgetParts();
    change({}, entries);
}

void HistoryModel::forgetParts() {
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex top = index(row, NameColumn);
        removeMissing(top, {});
        rowOf(top)->arePartsKnown = !m_arePartsAsked;
    }
}

void HistoryModel::showParts(const QString& name, const std::vector<RangeAnswer::Entry>& parts) {
    for (int row = 0; row < rowCount(); ++row)
        if (const QModelIndex top = index(row, NameColumn); rowOf(top)->name == name) {
            rowOf(top)->arePartsKnown = true;
            change(top, parts);
        }
}

void HistoryModel::setByProject(bool isByProject) {
    m_isByProject = isByProject;
    Q_EMIT headerDataChanged(Qt::Horizontal, NameColumn, NameColumn);
}

void HistoryModel::removeMissing(const QModelIndex& parent, const std::vector<RangeAnswer::Entry>& entries) {
    QSet<QString> names;
    for (const auto& entry : entries)
        names.insert(entry.name);
    Rows& rows = rowsOf(parent);
    for (int row = int(rows.size()) - 1; row >= 0; --row)
        if (!names.contains(rows[std::size_t(row)]->name)) {
            beginRemoveRows(parent, row, row);
            rows.erase(rows.begin() + row);
            endRemoveRows();
        }
}

void HistoryModel::change(const QModelIndex& parent, const std::vector<RangeAnswer::Entry>& entries) {
    removeMissing(parent, entries);
    Rows& rows = rowsOf(parent);
    QHash<QString, int> places;
    for (int row = 0; row < int(rows.size()); ++row)
        places.insert(rows[std::size_t(row)]->name, row);
    Rows added;
    for (const auto& entry : entries)
        if (!places.contains(entry.name)) {
            added.push_back(std::make_unique<Row>(Row{entry.name, 0, rowOf(parent)}));
            added.back()->arePartsKnown = parent.isValid() || !m_arePartsAsked;
        }
    if (!added.empty()) {
        const int first = int(rows.size());
        beginInsertRows(parent, first, first + int(added.size()) - 1);
        for (auto& row : added) {
            places.insert(row->name, int(rows.size()));
            rows.push_back(std::move(row));
        }
        endInsertRows();
    }
    for (const auto& entry : entries) {
        const int row = places.value(entry.name);
        rows[std::size_t(row)]->length = entry.length;
        rows[std::size_t(row)]->isNamedByHand = entry.isNamedByHand;
        // Known titles of a longer range stay until they are asked for again.
        if (!m_arePartsAsked && !parent.isValid())
            change(index(row, NameColumn), entry.parts);
    }
    // Shares change with the total, whatever the row.
    if (!rows.empty())
        Q_EMIT dataChanged(index(0, TimeSpentColumn, parent),
                           index(int(rows.size()) - 1, ShareColumn, parent));
}

HistoryModel::Row* HistoryModel::rowOf(const QModelIndex& index) const {
    if (!index.isValid())
        return m_root.get();
    return static_cast<Row*>(index.internalPointer())->rows[std::size_t(index.row())].get();
}

HistoryModel::Rows& HistoryModel::rowsOf(const QModelIndex& parent) {
    return rowOf(parent)->rows;
}

QModelIndex HistoryModel::index(int row, int column, const QModelIndex& parent) const {
    // An index points to the row above its own.
    return hasIndex(row, column, parent) ? createIndex(row, column, rowOf(parent)) : QModelIndex();
}

QModelIndex HistoryModel::parent(const QModelIndex& child) const {
    if (!child.isValid())
        return {};
    const auto* parent = static_cast<const Row*>(child.internalPointer());
    if (!parent->parent)
        return {};
    const Rows& siblings = parent->parent->rows;
    const auto place = std::ranges::find_if(siblings, [&](const auto& row) { return row.get() == parent; }) -
                       siblings.begin();
    return createIndex(int(place), 0, parent->parent);
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : int(rowOf(parent)->rows.size());
}

int HistoryModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

bool HistoryModel::hasChildren(const QModelIndex& parent) const {
    return parent.column() <= 0 && (canFetchMore(parent) || !rowOf(parent)->rows.empty());
}

bool HistoryModel::canFetchMore(const QModelIndex& parent) const {
    return parent.isValid() && !rowOf(parent)->arePartsKnown;
}

void HistoryModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent))
        return;
    rowOf(parent)->arePartsKnown = true;
    Q_EMIT partsWanted(rowOf(parent)->name);
}

QString HistoryModel::shownName(const QModelIndex& index) const {
    const Row& row = *rowOf(index);
    const bool isTitle = index.parent().isValid() && !m_isByProject;
    return isTitle ? shownTitle(row.name, rowOf(index.parent())->name) : row.name;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    const Row& row = *rowOf(index);
    const double share = m_total > 0 ? double(row.length) / double(m_total) : 0;
    switch (role) {
    case LengthRole:
        return row.length;
    case ProgramRole:
        return index.parent().isValid() == m_isByProject ? row.name : QString();
    case ShareRole:
        return share;
    case SortRole:
        return index.column() == NameColumn ? QVariant(row.name) : QVariant(row.length);
    case Qt::DisplayRole:
        if (index.column() == NameColumn)
            return PlainText::cut(shownName(index), PlainText::kLongestEntry);
        return index.column() == TimeSpentColumn
                   ? TimeTracker::timeStringForDouble(double(row.length) / 1000)
                   : QLocale().toString(share * 100, 'f', 1) + QLocale().percent();
    case Qt::EditRole:
        return row.name;
    case Qt::TextAlignmentRole:
        return index.column() == NameColumn ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        if (index.column() != NameColumn)
            return {};
        return PlainText::toolTip(row.isNamedByHand ? row.name + u'\n' + localized("Named by hand")
                                                    : row.name);
    case Qt::AccessibleDescriptionRole:
        return index.column() == NameColumn && row.isNamedByHand ? QVariant(localized("Named by hand"))
                                                                 : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && section != NameColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return m_isByProject ? localized("Project") : localized("Program");
    case TimeSpentColumn:
        return localized("Time Spent");
    default:
        return localized("Share");
    }
}
