// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectDrops.h"

#include <QAbstractItemModel>
#include <QMimeData>

// The sidebar's rows: the main item, below it the projects in their order and, if that is wanted and there are
// projects, what belongs to none. Translates the list's announcements to rows, and passes on what the user does. The
// list must outlive it.
class ProjectListModel : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { NameColumn, TimeColumn, ColumnCount };

    // What the user asks for through the rows. Always called with rows that exist.
    struct Handlers {
        std::function<void(const ProjectList::Project&, const QString& label)> rename;
        std::function<void(const std::vector<Identity>& items, const ProjectList::Project&)> dropOnProject;
        // `childIndex` counts the main item; -1 means below all rows.
        std::function<void(const std::vector<Identity>& items, int childIndex)> dropBetween;
        std::function<void(int draggedRow, int position, DropOperation)> dropProject;
    };

    ProjectListModel(ProjectList& projects, Handlers handlers);
    ~ProjectListModel() override;

    // Whether there is a row for what belongs to no project.
    void wantRest(bool isWanted);
    // The times beside the names, from top to bottom, that of the rest last even where it has no row; none if there are
    // fewer.
    void showTimes(std::vector<QString> times);

    // The main item for row 0.
    ProjectList::Project project(const QModelIndex& index) const;
    bool isProject(const QModelIndex& index) const;
    // Invalid for a record that is not in the list.
    QModelIndex indexOf(const ProjectRecord& project) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction | Qt::MoveAction; }
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction | Qt::MoveAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    // Before which row the dragged project would stand if it were dropped onto this row, or beside all rows;
    // -1 if nothing would be moved. Absent if no project is dragged.
    std::optional<int> dropLine(const QMimeData& data, Qt::DropAction action, const QModelIndex& onto) const;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    static QString spokenLabel(const ProjectRecord& project);
    void changed(const ProjectListChange& change);
    bool isRest(const QModelIndex& index) const;
    QString time(int row) const;
    void placeRest();
    void removeRest();

    ProjectList& m_projects;
    Handlers m_handlers;
    bool m_isRestWanted = false;
    bool m_hasRest = false;
    std::vector<QString> m_times;
    Subscription m_changes;
};
