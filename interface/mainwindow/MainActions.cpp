// SPDX-License-Identifier: MIT
#include "interface/mainwindow/MainActions.h"

#include "interface/shell/ButtonText.h"
#include "interface/shell/Images.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QActionGroup>
#include <QMenuBar>

namespace {

// The object name lets tests find the command.
QAction* make(QObject* window, const char* name, const QString& text, const QKeySequence& shortcut = {}) {
    auto* action = new QAction(text, window);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    return action;
}

void addTo(QMenu& menu, const QList<QAction*>& items) {
    for (QAction* item : items)
        item ? menu.addAction(item) : void(menu.addSeparator());
}

QMenu* addMenu(QMenuBar& menuBar, const char* name, const QString& title, const QList<QAction*>& items) {
    QMenu* menu = menuBar.addMenu(title);
    menu->setObjectName(QLatin1String(name));
    menu->setAccessibleName(buttonText(title));
    addTo(*menu, items);
    return menu;
}

} // namespace

MainActions::MainActions(QObject* window)
    : importDatabase(make(window, "importDatabase", localized("&Import Database…"), QKeySequence::Open))
    , saveCopy(make(window, "saveCopy", localized("&Save a Copy As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S))
    , chooseDatabaseLocation(make(window, "chooseDatabaseDirectory", localized("&Choose Database Location…")))
    , restoreDefaultDatabaseLocation(
          make(window, "restoreDefaultDatabaseLocation", localized("&Restore Default Database Location")))
    , revealDatabase(make(window, "revealDatabase", localized("Show &Database in File Manager")))
    , exportShown(
          make(window, "exportShownToCSV", localized("E&xport Shown Timers to CSV…"), Qt::CTRL | Qt::Key_E))
    , exportAll(make(window, "exportAllToCSV", localized("Export &All Timers to CSV…"),
                     Qt::CTRL | Qt::SHIFT | Qt::Key_E))
    , exportProject(make(window, "exportProjectToCSV", localized("Export &Project…")))
    , exportForSpreadsheet(
          make(window, "exportForSpreadsheet", localized("Export Shown &Timers for Spreadsheets…")))
    , closeWindow(make(window, "closeWindow", localized("C&lose Window"), QKeySequence::Close))
    , quit(make(window, "quit", localized("&Quit"), Qt::CTRL | Qt::Key_Q))
    , undo(make(window, "undo", localized("&Undo"), QKeySequence::Undo))
    , redo(make(window, "redo", localized("&Redo"), QKeySequence::Redo))
    , copy(make(window, "copy", localized("&Copy"), QKeySequence::Copy))
    , copyForSpreadsheet(make(window, "copyForSpreadsheet", localized("Copy for Spreadshee&t"),
                              Qt::CTRL | Qt::SHIFT | Qt::Key_C))
    , copySummaryTime(
          make(window, "copySummaryTime", localized("Copy &Summary Time"), Qt::CTRL | Qt::ALT | Qt::Key_C))
    , paste(make(window, "paste", localized("Paste &into Project"), QKeySequence::Paste))
    , rename(make(window, "rename", localized("Re&name"), Qt::Key_F2))
    , deleteRows(make(window, "delete", localized("&Delete"), QKeySequence::Delete))
    , forceDelete(
          make(window, "forceDelete", localized("Delete &Without Asking"), Qt::SHIFT | Qt::Key_Delete))
    , selectAll(make(window, "selectAll", localized("Select &All"), QKeySequence::SelectAll))
    , deselectAll(make(window, "deselectAll", localized("D&eselect All"), Qt::CTRL | Qt::SHIFT | Qt::Key_A))
    , find(make(window, "find", localized("&Find"), QKeySequence::Find))
    , showPrefWindow(make(window, "showPrefWindow", localized("&Preferences…"), Qt::CTRL | Qt::Key_Comma))
    , editRules(make(window, "editRules", localized("Edit Ru&les…")))
    , showTimers(make(window, "showTimers", localized("&Timers"), Qt::CTRL | Qt::Key_1))
    , showHistory(make(window, "showHistory", localized("&History"), Qt::CTRL | Qt::Key_2))
    , expandAll(make(window, "expandAll", localized("&Expand All"), Qt::CTRL | Qt::Key_Plus))
    , collapseAll(make(window, "collapseAll", localized("C&ollapse All"), Qt::CTRL | Qt::Key_Minus))
    , showSidebar(make(window, "showSidebar", localized("&Projects"), Qt::Key_F9))
    , addProject(make(window, "addProject", localized("&New Project"), QKeySequence::New))
    , renameProject(make(window, "renameProject", localized("&Rename Project")))
    , editPatterns(make(window, "editPatterns", localized("Pa&tterns…")))
    , moveProjectUp(make(window, "moveProjectUp", localized("Move &Up"), Qt::ALT | Qt::Key_Up))
    , moveProjectDown(make(window, "moveProjectDown", localized("Move &Down"), Qt::ALT | Qt::Key_Down))
    , branchProject(make(window, "branchProject", localized("&Freeze All Timers of the Project")))
    , removeProject(make(window, "removeProject", localized("D&elete Project…")))
    , toggleCounting(make(window, "toggleCounting", localized("Start"), Qt::CTRL | Qt::Key_T))
    , addToProject(make(window, "addToProject", localized("Add to &Project")))
    , branch(make(window, "branch", localized("&Freeze"), Qt::CTRL | Qt::Key_B))
    , clearTimers(make(window, "clearTimersItem", localized("Clear Timers")))
    , showManual(make(window, "showManual", localized("&Manual"), QKeySequence::HelpContents))
    , about(make(window, "about", localized("&About Ticklog"))) {
    clearTimers->setIcon(Images::symbol(QStringLiteral("ToolbarClear")));
    auto* sides = new QActionGroup(window);
    for (QAction* side : {showTimers, showHistory}) {
        side->setCheckable(true);
        sides->addAction(side);
    }
    showTimers->setChecked(true);
    showSidebar->setCheckable(true);
    showSidebar->setChecked(true);
    quit->setMenuRole(QAction::QuitRole);
    showPrefWindow->setMenuRole(QAction::PreferencesRole);
    about->setMenuRole(QAction::AboutRole);
}

QMenu* MainActions::fill(QMenuBar& menuBar) const {
    addMenu(menuBar, "fileMenu", localized("&File"),
            {importDatabase, saveCopy, nullptr, chooseDatabaseLocation, restoreDefaultDatabaseLocation,
             revealDatabase, nullptr, exportShown, exportAll, exportProject, exportForSpreadsheet, nullptr,
             closeWindow, quit});
    addMenu(menuBar, "editMenu", localized("&Edit"),
            {undo, redo, nullptr, copy, copyForSpreadsheet, copySummaryTime, paste, nullptr, rename,
             deleteRows, forceDelete, nullptr, selectAll, deselectAll, nullptr, find, nullptr, editRules,
             showPrefWindow});
    addMenu(menuBar, "viewMenu", localized("&View"),
            {showTimers, showHistory, nullptr, showSidebar, nullptr, expandAll, collapseAll});
    QMenu* projectMenu = addMenu(menuBar, "projectMenu", localized("&Project"),
                                 {addProject, renameProject, editPatterns, nullptr, moveProjectUp,
                                  moveProjectDown, nullptr, branchProject, nullptr, removeProject, nullptr});
    addMenu(menuBar, "timerMenu", localized("&Timer"),
            {toggleCounting, nullptr, addToProject, branch, nullptr, clearTimers});
    addMenu(menuBar, "helpMenu", localized("&Help"), {showManual, about});
    return projectMenu;
}

QList<QAction*> MainActions::forTimers() const {
    return {copy,    copyForSpreadsheet, rename,  addToProject, branch,
            nullptr, deleteRows,         nullptr, expandAll,    collapseAll};
}

QList<QAction*> MainActions::forProjects() const {
    return {addProject,      renameProject, editPatterns,  nullptr,       moveProjectUp,
            moveProjectDown, nullptr,       branchProject, exportProject, removeProject};
}
