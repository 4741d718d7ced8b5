// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>

class QMenu;
class QMenuBar;

// All commands of the main window, made once for menus, toolbar and keyboard. They belong to `window`; what
// they do is connected from outside.
struct MainActions {
    explicit MainActions(QObject* window);

    // Fills the menu bar. Answers the menu that shows the row of colour labels.
    QMenu* fill(QMenuBar& menuBar) const;

    // The commands of the context menus of timers and of projects.
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
    QAction* exportForSpreadsheet;
    QAction* closeWindow;
    QAction* quit;

    QAction* undo;
    QAction* redo;
    QAction* copy;
    QAction* copyForSpreadsheet;
    QAction* copySummaryTime;
    // Puts copied timers into the project that is shown.
    QAction* paste;
    QAction* rename;
    QAction* deleteRows;
    QAction* forceDelete;
    QAction* selectAll;
    QAction* deselectAll;
    QAction* find;
    QAction* showPrefWindow;
    QAction* editRules;

    // Which of its two sides the window shows. One is checked.
    QAction* showTimers;
    QAction* showHistory;
    QAction* expandAll;
    QAction* collapseAll;
    QAction* showSidebar;

    QAction* addProject;
    QAction* renameProject;
    QAction* editPatterns;
    QAction* moveProjectUp;
    QAction* moveProjectDown;
    QAction* branchProject;
    QAction* removeProject;

    QAction* toggleCounting;
    QAction* addToProject;
    QAction* branch;
    QAction* clearTimers;

    QAction* showManual;
    QAction* about;
};
