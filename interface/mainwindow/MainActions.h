// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>

class QMenu;
class QMenuBar;

// Every command of the main window, once, for menus, toolbar and keyboard. All belong to the window they were made
// for; what they do is connected from outside.
struct MainActions {
    explicit MainActions(QObject* window);

    // Fills the menu bar. Answers the menu that is to take the row of colour labels.
    QMenu* fill(QMenuBar& menuBar) const;

    // What can be done to timers, and to projects, where they stand.
    QList<QAction*> forTimers() const;
    QList<QAction*> forProjects() const;

    QAction* importDatabase;
    QAction* saveCopy;
    QAction* chooseDatabaseLocation;
    QAction* restoreDefaultDatabaseLocation;
    QAction* revealDatabase;
    QAction* exportShown;
    QAction* exportAll;
    QAction* exportProject;
    QAction* closeWindow;
    QAction* quit;

    QAction* undo;
    QAction* redo;
    QAction* copy;
    QAction* copySummaryTime;
    QAction* rename;
    QAction* deleteRows;
    QAction* forceDelete;
    QAction* selectAll;
    QAction* deselectAll;
    QAction* find;
    QAction* showPrefWindow;
    QAction* editRules;

    QAction* expandAll;
    QAction* collapseAll;
    QAction* showSidebar;

    QAction* addProject;
    QAction* renameProject;
    QAction* moveProjectUp;
    QAction* moveProjectDown;
    QAction* branchProject;
    QAction* removeProject;

    QAction* toggleCounting;
    QAction* branch;
    QAction* clearTimers;

    QAction* about;
};
