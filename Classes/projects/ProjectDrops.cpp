// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectDrops.h"

#include <algorithm>

std::size_t ProjectDrops::targetPosition(const ProjectRecord* proposed) const {
    const auto position = proposed ? m_projects.positionOf(*proposed) : std::nullopt;
    return position.value_or(m_projects.count());
}

void ProjectDrops::acceptItems(const std::vector<Identity>& items, const ProjectRecord& project) {
    m_projects.addMembers(project, items);
}

ProjectList::Project ProjectDrops::acceptItems(const std::vector<Identity>& items,
                                               std::ptrdiff_t childIndex) {
    const bool isAtProject = childIndex > 0 && std::size_t(childIndex - 1) < m_projects.count();
    auto project = m_projects.addNewProjectWithItems(items, isAtProject ? std::size_t(childIndex - 1)
                                                                        : ProjectList::kAtEnd);
    m_projects.reloadReverseProjectCache();
    return project;
}

ProjectDrops::AcceptedRow ProjectDrops::acceptProjectRow(std::size_t draggedRow, std::ptrdiff_t position,
                                                         DropOperation operation) {
    const std::size_t target =
        std::min(std::size_t(std::max<std::ptrdiff_t>(position, 0)), m_projects.count());
    if (operation == DropOperation::Copy)
        return {m_projects.copyProject(draggedRow, target), std::nullopt};
    // Once the project has left its old place, all below it move up by one.
    const std::size_t destination = draggedRow <= target && target > 0 ? target - 1 : target;
    if (!m_projects.moveProject(draggedRow, destination))
        return {};
    return {true, destination + 1};
}

std::optional<std::size_t> ProjectDrops::landingBefore(std::size_t draggedRow, std::size_t position,
                                                       DropOperation operation) const {
    if (draggedRow >= m_projects.count())
        return std::nullopt;
    const std::size_t target = std::min(position, m_projects.count());
    // Dropped onto itself, a project goes one place up.
    const bool isItself = operation == DropOperation::Move && draggedRow == target && target > 0;
    return isItself ? target - 1 : target;
}
