// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"

#include <QUndoCommand>

// A change of the projects, undone and redone as a whole.
class ProjectsCommand : public QUndoCommand {
public:
    ProjectsCommand(const QString& text, ProjectList& projects, ProjectList::Snapshot before)
        : QUndoCommand(text)
        , m_projects(projects)
        , m_before(std::move(before))
        , m_after(projects.snapshot()) {}

    bool changesAnything() const { return !m_after.isLike(m_before); }

    void undo() override { m_projects.restore(m_before); }

    void redo() override {
        // The first redo() comes when the command is pushed: the change has already been made.
        if (std::exchange(m_isMade, false))
            return;
        m_projects.restore(m_after);
    }

private:
    ProjectList& m_projects;
    ProjectList::Snapshot m_before;
    ProjectList::Snapshot m_after;
    bool m_isMade = true;
};
