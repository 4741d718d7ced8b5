// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"

enum class DropOperation { Copy, Move };

// What dropping timers and project rows onto the sidebar does to the list. Positions count from 0 and leave the main
// item out; outline indices and rows count it as the first.
class ProjectDrops {
public:
    // What became of a dropped project row.
    struct AcceptedRow {
        bool isAccepted = false;
        // The sidebar row to select, alone. Absent after a copy.
        std::optional<std::size_t> selectedRow;
    };

    // Outlives the drops.
    explicit ProjectDrops(ProjectList& projects)
        : m_projects(projects) {}

    // Where a project row goes that is held over `proposed`: before that project; at the end over anything else, also
    // over null.
    std::size_t targetPosition(const ProjectRecord* proposed) const;

    // Timers dropped onto a project become its members.
    void acceptItems(const std::vector<Identity>& items, const ProjectRecord& project);
    // Timers dropped between rows, at an outline index, become a new project there; at the end for an index that no
    // project has. Never null.
    ProjectList::Project acceptItems(const std::vector<Identity>& items, std::ptrdiff_t childIndex);
    // A project row dropped at a position of the list. `draggedRow` counts the main item and is taken as a position all
    // the same, so that it means the project below the row that was dragged. Not accepted when there is none.
    AcceptedRow acceptProjectRow(std::size_t draggedRow, std::ptrdiff_t position, DropOperation operation);

    // Before which of the projects as they stand now one comes to stand that is dropped so; their number is behind all.
    // Absent when acceptProjectRow() does not accept it.
    std::optional<std::size_t> landingBefore(std::size_t draggedRow, std::size_t position,
                                             DropOperation operation) const;

private:
    ProjectList& m_projects;
};
