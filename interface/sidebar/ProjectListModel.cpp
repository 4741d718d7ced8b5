// SPDX-License-Identifier: MIT
#include "interface/sidebar/ProjectListModel.h"

#include "Classes/exchange/PasteboardTypes.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/shell/PlainText.h"

using Kind = ProjectListChange::Kind;

ProjectListModel::ProjectListModel(ProjectList& projects, Handlers handlers)
    : m_projects(projects)
    , m_handlers(std::move(handlers))
    , m_changes(projects.observeChanges([this](const ProjectListChange& change) { changed(change); })) {}

ProjectListModel::~ProjectListModel() = default;

void ProjectListModel::changed(const ProjectListChange& change) {
    const bool isBefore = change.phase == ChangePhase::Will;
    // Row 0 is the main item.
    const int row = change.position ? int(*change.position) + 1 : 0;
    switch (change.kind) {
    case Kind::Insert:
        isBefore ? beginInsertRows({}, row, row) : endInsertRows();
        if (!isBefore)
            placeRest();
        break;
    case Kind::Remove:
        if (isBefore && m_projects.count() == 1)
            removeRest();
        isBefore ? beginRemoveRows({}, row, row) : endRemoveRows();
        break;
    case Kind::Replace:
        if (isBefore)
            return beginResetModel();
        m_hasRest = m_isRestWanted && m_projects.count() > 0;
        endResetModel();
        break;
    case Kind::Label:
    case Kind::ColorTag:
        Q_EMIT dataChanged(index(row, NameColumn), index(row, TimeColumn));
        break;
    case Kind::Members:
    case Kind::Patterns:
        break;
    }
}

void ProjectListModel::wantRest(bool isWanted) {
    m_isRestWanted = isWanted;
    isWanted ? placeRest() : removeRest();
}

void ProjectListModel::placeRest() {
    if (m_hasRest || !m_isRestWanted || m_projects.count() == 0)
        return;
    beginInsertRows({}, rowCount(), rowCount());
    m_hasRest = true;
    endInsertRows();
}

void ProjectListModel::removeRest() {
    if (!m_hasRest)
        return;
    beginRemoveRows({}, rowCount() - 1, rowCount() - 1);
    m_hasRest = false;
    endRemoveRows();
}

void ProjectListModel::showTimes(std::vector<QString> times) {
    std::vector<QString> before;
    for (int row = 0; row < rowCount(); ++row)
        before.push_back(time(row));
    m_times = std::move(times);
    for (int row = 0; row < rowCount(); ++row)
        if (time(row) != before[std::size_t(row)])
            Q_EMIT dataChanged(index(row, TimeColumn), index(row, TimeColumn), {Qt::DisplayRole});
}

// Projects may have come or gone since the times were made.
QString ProjectListModel::time(int row) const {
    if (m_times.size() != m_projects.count() + 2)
        return {};
    return m_times[std::size_t(row)];
}

bool ProjectListModel::isRest(const QModelIndex& index) const {
    return m_hasRest && index.row() == int(m_projects.count()) + 1;
}

bool ProjectListModel::isProject(const QModelIndex& index) const {
    return index.row() > 0 && index.row() <= int(m_projects.count());
}

ProjectList::Project ProjectListModel::project(const QModelIndex& index) const {
    return isRest(index) ? m_projects.restItem() : m_projects.projectForRow(index.row());
}

QModelIndex ProjectListModel::indexOf(const ProjectRecord& project) const {
    if (&project == m_projects.mainItem().get())
        return index(0, 0);
    if (&project == m_projects.restItem().get())
        return m_hasRest ? index(rowCount() - 1, 0) : QModelIndex();
    const auto position = m_projects.positionOf(project);
    return position ? index(int(*position) + 1, 0) : QModelIndex();
}

QModelIndex ProjectListModel::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex ProjectListModel::parent(const QModelIndex&) const {
    return {};
}

int ProjectListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_projects.count()) + 1 + (m_hasRest ? 1 : 0);
}

int ProjectListModel::columnCount(const QModelIndex&) const {
    return ColumnCount;
}

// The colour is heard as well as seen.
QString ProjectListModel::spokenLabel(const ProjectRecord& project) {
    const int tag = int(project.colorTag());
    const bool hasColor = TKLabelColorList::sharedColorList().colorForTag(tag).alpha() > 0;
    return hasColor ? project.label() + QStringLiteral(", ") + TKLabelColorList::nameForTag(tag)
                    : project.label();
}

// The sidebar's header is hidden. Left to Qt, it would be read aloud as “1”.
QVariant ProjectListModel::headerData(int, Qt::Orientation, int) const {
    return {};
}

QVariant ProjectListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const QString shownTime = time(index.row());
    if (index.column() == TimeColumn)
        return role == Qt::DisplayRole ? QVariant(shownTime) : QVariant();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return project(index)->label();
    case Qt::AccessibleTextRole:
        return shownTime.isEmpty() ? spokenLabel(*project(index))
                                   : spokenLabel(*project(index)) + QStringLiteral(", ") + shownTime;
    case Qt::ToolTipRole:
        return PlainText::toolTip(project(index)->label());
    default:
        return {};
    }
}

bool ProjectListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !isProject(index))
        return false;
    m_handlers.rename(project(index), value.toString());
    return true;
}

Qt::ItemFlags ProjectListModel::flags(const QModelIndex& index) const {
    constexpr Qt::ItemFlags kEveryRow = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    // A project can be dropped on the rest, and goes below the others.
    if (isRest(index))
        return kEveryRow | Qt::ItemIsDropEnabled;
    if (index.row() == 0)
        return kEveryRow | Qt::ItemIsDragEnabled;
    return index.column() == NameColumn
               ? kEveryRow | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled | Qt::ItemIsEditable
               : kEveryRow | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}

QStringList ProjectListModel::mimeTypes() const {
    return {kTimerPasteboardType, kProjectPasteboardType};
}

bool ProjectListModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                       const QModelIndex& parent) const {
    if (action != Qt::CopyAction && action != Qt::MoveAction)
        return false;
    // The main item contains all timers already, so nothing can be dropped on it.
    if (parent.isValid() && parent.row() == 0)
        return false;
    // A timer may be in several projects, and a window be there by its application.
    if (isRest(parent) && data->hasFormat(kTimerPasteboardType))
        return false;
    return data->hasFormat(kTimerPasteboardType) || data->hasFormat(kProjectPasteboardType);
}

std::optional<int> ProjectListModel::dropLine(const QMimeData& data, Qt::DropAction action,
                                              const QModelIndex& onto) const {
    if (data.hasFormat(kTimerPasteboardType))
        return std::nullopt;
    const auto dragged = projectRowFromPasteboard(data.data(kProjectPasteboardType));
    const auto operation = action == Qt::CopyAction ? DropOperation::Copy : DropOperation::Move;
    const auto target = onto.isValid() ? project(onto) : nullptr;
    const ProjectDrops drops(m_projects);
    const auto before =
        dragged ? drops.landingBefore(std::size_t(*dragged), drops.targetPosition(target.get()), operation)
                : std::nullopt;
    return before ? int(*before) + 1 : -1;
}

bool ProjectListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                    const QModelIndex& parent) {
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const auto target = parent.isValid() ? project(parent) : nullptr;
    if (data->hasFormat(kTimerPasteboardType)) {
        const auto timers = timersFromPasteboard(data->data(kTimerPasteboardType));
        if (!timers)
            return false;
        target ? m_handlers.dropOnProject(*timers, target) : m_handlers.dropBetween(*timers, row);
        return true;
    }
    const auto dragged = projectRowFromPasteboard(data->data(kProjectPasteboardType));
    if (!dragged)
        return false;
    const auto operation = action == Qt::CopyAction ? DropOperation::Copy : DropOperation::Move;
    m_handlers.dropProject(*dragged, int(ProjectDrops(m_projects).targetPosition(target.get())), operation);
    return true;
}
