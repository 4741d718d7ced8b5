// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"

#include <QMenu>

// A menu with a line for each project, in the sidebar's order and with its colour, and one for a new project.
// It is made anew whenever it opens.
class ProjectMenu : public QMenu {
public:
    struct Choices {
        std::function<void(const ProjectList::Project& project)> project;
        std::function<void()> newProject;
        // Whether it has been chosen already: its line is checked and cannot be chosen.
        std::function<bool(const ProjectRecord& project)> isChosen;
    };

    // `projects` outlives the menu.
    ProjectMenu(const QString& title, const ProjectList& projects, Choices choices, QWidget* parent);

private:
    void fill();

    const ProjectList& m_projects;
    Choices m_choices;
};
