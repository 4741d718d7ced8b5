// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"

enum class DropOperation { Copy, Move };

// What happens to the list when timers or project rows are dropped onto the sidebar. Positions count the
// projects from 0, without the main item; outline indices and rows count the main item as 0.
class ProjectDrops {
public:
    // What became of a dropped project row.
    struct AcceptedRow {
        bool isAccepted = false;
        // The sidebar row that is to be the only selected one. Absent after a copy.
        std::optional<std::size_t> selectedRow;
    };

    // `projects` outlives this object.
    explicit ProjectDrops(ProjectList& projects)
        : m_projects(projects) {}

    // The position for a project row held over `proposed`: before that project, or at the end if `proposed`
    // is null or no project.
    std::size_t targetPosition(const ProjectRecord* proposed) const;

    // Timers dropped onto a project become its members.
    void acceptItems(const std::vector<Identity>& items, const ProjectRecord& project);
    // Timers dropped between rows become a new project at this outline index, or at the end if no project has
    // that index. Never null.
    ProjectList::Project acceptItems(const std::vector<Identity>& items, std::ptrdiff_t childIndex);
    // A project row was dropped at a position of the list. Although `draggedRow` counts the main item, it is
    // used as a position: so it means the project below the one that was dragged. Not accepted when there is
    // none.
    AcceptedRow acceptProjectRow(std::size_t draggedRow, std::ptrdiff_t position, DropOperation operation);

    // Where acceptProjectRow() would put the project: in front of the project that has this position now, or
    // at the end if it is the number of projects. Absent when it would not be accepted.
    std::optional<std::size_t> landingBefore(std::size_t draggedRow, std::size_t position,
                                             DropOperation operation) const;

private:
    ProjectList& m_projects;
};
