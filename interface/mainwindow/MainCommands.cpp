// SPDX-License-Identifier: MIT
#include "interface/mainwindow/MainCommands.h"

#include "Classes/exchange/PasteboardTypes.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/mainwindow/AppTypeControl.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/pasteboard/TimeMimeData.h"
#include "interface/shell/ButtonText.h"
#include "interface/shell/ManualWindow.h"
#include "interface/sidebar/ProjectMenu.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>

namespace {

template<typename Reaction>
void connectTo(QAction* action, QObject& receiver, Reaction react) {
    QObject::connect(action, &QAction::triggered, &receiver, react);
}

// A step that turns out to be impossible is removed from the stack, and the next one is tried, so that the
// command always does something.
void untilOneHolds(QUndoStack& stack, void (QUndoStack::*step)(), bool (QUndoStack::*isThere)() const) {
    for (int count = -1; count != stack.count() && (stack.*isThere)();) {
        count = stack.count();
        (stack.*step)();
    }
}

// Only timers of this program can be members of its projects; so nobody else is asked what they have copied.
bool hasCopiedTimers() {
    const auto* copied = qobject_cast<const TimeMimeData*>(QGuiApplication::clipboard()->mimeData());
    return copied && copied->hasFormat(kTimerPasteboardType);
}

std::optional<std::vector<Identity>> copiedTimers() {
    if (!hasCopiedTimers())
        return std::nullopt;
    return timersFromPasteboard(QGuiApplication::clipboard()->mimeData()->data(kTimerPasteboardType));
}

} // namespace

MainCommands::MainCommands(TKController& controller, QUndoStack& undoStack)
    : m_controller(controller)
    , m_focusedOutline(&controller.window().mainTable())
    , m_announcer(controller.window()) {
    connectDatabase();
    connectHelp();
    connectEditing();
    connectUndo(undoStack);
    announceSteps(undoStack);
    connectTimers();
    connectProjects();
    connectAddingToProject();
    followFocus();
    QObject::connect(&controller.window(), &MainWindow::historyShownChanged, &m_receiver,
                     [this] { update(); });
    update();
}

void MainCommands::connectDatabase() {
    const MainActions& actions = m_controller.window().actions();
    connectTo(actions.importDatabase, m_receiver, [this] { m_controller.documents().openDocument(); });
    connectTo(actions.saveCopy, m_receiver, [this] { m_controller.documents().saveCopy(); });
    connectTo(actions.chooseDatabaseLocation, m_receiver,
              [this] { m_controller.documents().chooseDatabaseDirectory(); });
    connectTo(actions.restoreDefaultDatabaseLocation, m_receiver,
              [this] { m_controller.database().restoreDefaultDatabaseLocation(); });
    connectTo(actions.revealDatabase, m_receiver, [this] { m_controller.documents().revealDatabase(); });
    connectTo(actions.exportShown, m_receiver, [this] {
        MainWindow& window = m_controller.window();
        window.isHistoryShown() ? window.historyPane().exportWanted() : m_controller.exportShown();
    });
    connectTo(actions.exportAll, m_receiver, [this] { m_controller.exporting().exportAllToCSV(); });
    connectTo(actions.exportForSpreadsheet, m_receiver, [this] {
        MainWindow& window = m_controller.window();
        window.isHistoryShown() ? window.historyPane().exportWanted() : m_controller.exportForSpreadsheet();
    });
    connectTo(actions.exportProject, m_receiver, [this] { m_controller.exportProject(); });
    connectTo(actions.closeWindow, m_receiver, [this] { m_controller.window().close(); });
    connectTo(actions.quit, m_receiver, [this] { m_controller.appDelegate().terminate(); });
    AppTypeControl& appType = m_controller.window().appTypeToolbar();
    connectTo(&appType.dockIconMenuItem(), m_receiver, [this] { m_controller.toggleDockIcon(); });
    connectTo(&appType.menuItemMenuItem(), m_receiver, [this] { m_controller.toggleMenuItem(); });
}

void MainCommands::connectHelp() {
    const MainActions& actions = m_controller.window().actions();
    connectTo(actions.showManual, m_receiver, [this] {
        if (!m_manual)
            m_manual = new ManualWindow(&m_controller.window());
        m_manual->show();
        m_manual->raise();
        m_manual->activateWindow();
    });
    connectTo(actions.about, m_receiver, [this] { m_controller.appDelegate().showAboutBox(); });
}

void MainCommands::connectEditing() {
    const MainActions& actions = m_controller.window().actions();
    connectTo(actions.copy, m_receiver, [this] {
        areForHistory() ? m_controller.window().historyPane().outline().copy() : m_focusedOutline->copy();
    });
    connectTo(actions.copyForSpreadsheet, m_receiver, [this] {
        areForHistory() ? m_controller.window().historyPane().outline().copy()
                        : m_controller.copyForSpreadsheet();
    });
    connectTo(actions.copySummaryTime, m_receiver, [this] { m_controller.copySummaryTime(); });
    connectTo(actions.rename, m_receiver, [this] { m_focusedOutline->editName(); });
    connectTo(actions.deleteRows, m_receiver, [this] { m_focusedOutline->deleteRows(); });
    connectTo(actions.forceDelete, m_receiver, [this] { m_focusedOutline->forceDelete(); });
    connectTo(actions.selectAll, m_receiver, [this] {
        MainWindow& window = m_controller.window();
        (window.isHistoryShown() ? static_cast<QTreeView&>(window.historyPane().outline())
                                 : window.mainTable())
            .selectAll();
    });
    connectTo(actions.deselectAll, m_receiver, [this] {
        MainWindow& window = m_controller.window();
        window.isHistoryShown() ? window.historyPane().outline().clearSelection()
                                : m_controller.deselectAll();
    });
    connectTo(actions.find, m_receiver, [this] { m_controller.find(); });
}

void MainCommands::connectUndo(QUndoStack& undoStack) {
    const MainActions& actions = m_controller.window().actions();
    connectTo(actions.undo, m_receiver,
              [&undoStack] { untilOneHolds(undoStack, &QUndoStack::undo, &QUndoStack::canUndo); });
    connectTo(actions.redo, m_receiver,
              [&undoStack] { untilOneHolds(undoStack, &QUndoStack::redo, &QUndoStack::canRedo); });
    const auto offer = [&undoStack, undo = actions.undo, redo = actions.redo] {
        undo->setEnabled(undoStack.canUndo());
        redo->setEnabled(undoStack.canRedo());
    };
    for (const auto change : {&QUndoStack::canUndoChanged, &QUndoStack::canRedoChanged})
        QObject::connect(&undoStack, change, &m_receiver, offer);
    // When the last step that could be redone turns out to be impossible, canUndo and canRedo are not
    // signalled: this signal is.
    QObject::connect(&undoStack, &QUndoStack::indexChanged, &m_receiver, offer);
    offer();
}

void MainCommands::announceSteps(QUndoStack& undoStack) {
    QObject::connect(&undoStack, &QUndoStack::indexChanged, &m_receiver,
                     [this, &undoStack, before = undoStack.index()](int index) mutable {
                         const bool isDone = index > before;
                         const bool isUndone = index < before && undoStack.canRedo();
                         before = index;
                         if (isDone)
                             m_announcer.say(undoStack.undoText());
                         else if (isUndone)
                             m_announcer.say(buttonText(m_controller.window().actions().undo->text()) +
                                             QStringLiteral(": ") + undoStack.redoText());
                     });
}

void MainCommands::connectTimers() {
    const MainActions& actions = m_controller.window().actions();
    TKOutlineDisplayView& table = m_controller.window().mainTable();
    connectTo(actions.expandAll, m_receiver, [this, &table] {
        MainWindow& window = m_controller.window();
        window.isHistoryShown() ? window.historyPane().outline().expandAll() : table.expandAllRows();
    });
    connectTo(actions.collapseAll, m_receiver, [this, &table] {
        MainWindow& window = m_controller.window();
        window.isHistoryShown() ? window.historyPane().outline().collapseAll() : table.collapseAllRows();
    });
    connectTo(actions.toggleCounting, m_receiver, [this] {
        m_controller.timer().toggleCounting();
        m_announcer.say(m_controller.timer().isRunning() ? localized("Ticklog is counting")
                                                         : localized("Ticklog is paused"));
    });
    connectTo(actions.branch, m_receiver, [this] { m_controller.branchSelected(); });
    connectTo(actions.clearTimers, m_receiver, [this] { m_controller.clearTimers(); });
}

void MainCommands::connectAddingToProject() {
    MainWindow& window = m_controller.window();
    TKProjectController& projects = m_controller.projectController();
    const auto selected = [&table = window.mainTable()] {
        std::vector<Identity> timers;
        for (const auto& item : table.selectedItems())
            if (const auto identity = item->uuid())
                timers.push_back(*identity);
        return timers;
    };
    const auto hasAll = [selected](const ProjectRecord& project) {
        const auto timers = selected();
        if (timers.empty())
            return false;
        const auto members = project.flattenedMembers();
        return std::ranges::all_of(
            timers, [&](const Identity& timer) { return std::ranges::count(members, timer) > 0; });
    };
    auto* menu = new ProjectMenu(
        window.actions().addToProject->text(), m_controller.projects(),
        {.project = [=, &projects](const auto& project) { projects.addToProject(selected(), project); },
         .newProject = [=, &projects] { projects.addToNewProject(selected()); },
         .isChosen = hasAll},
        &window);
    menu->setObjectName(QStringLiteral("addToProjectMenu"));
    window.actions().addToProject->setMenu(menu);
}

void MainCommands::connectProjects() {
    const MainActions& actions = m_controller.window().actions();
    TKProjectController& projects = m_controller.projectController();
    connectTo(actions.addProject, m_receiver, [&projects] { projects.addProject(); });
    connectTo(actions.paste, m_receiver, [&projects] {
        if (const auto timers = copiedTimers())
            projects.addToProject(*timers, projects.currentProject());
    });
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &m_receiver,
                     [this] { update(); });
    connectTo(actions.renameProject, m_receiver, [&projects] { projects.renameProject(); });
    connectTo(actions.editPatterns, m_receiver, [&projects] { projects.editPatterns(); });
    connectTo(actions.moveProjectUp, m_receiver, [&projects] { projects.moveProject(-1); });
    connectTo(actions.moveProjectDown, m_receiver, [&projects] { projects.moveProject(1); });
    connectTo(actions.branchProject, m_receiver, [&projects] { projects.branchProject(); });
    connectTo(actions.removeProject, m_receiver, [&projects] { projects.tableViewDidRecieveDeleteKey(); });
}

void MainCommands::followFocus() {
    // A menu opened by keyboard takes the focus, so the outline that had it last is remembered.
    QObject::connect(qApp, &QApplication::focusChanged, &m_receiver, [this](QWidget*, QWidget* focused) {
        const MainWindow& window = m_controller.window();
        auto* outline = focused == &window.historyPane().outline()
                            ? &window.mainTable()
                            : qobject_cast<TKOutlineDisplayView*>(focused);
        if (outline != &window.mainTable() && outline != &window.projectOutline())
            return;
        m_focusedOutline = outline;
        update();
    });
}

bool MainCommands::areForHistory() const {
    const MainWindow& window = m_controller.window();
    return window.isHistoryShown() && m_focusedOutline == &window.mainTable();
}

void MainCommands::update() {
    const MainActions& actions = m_controller.window().actions();
    const TKOutlineDisplayView& table = m_controller.window().mainTable();
    const bool isHistory = m_controller.window().isHistoryShown();
    // What only timers can have done to them waits until they are shown again.
    const bool hasSelection = !isHistory && table.selectionModel()->hasSelection();
    actions.deselectAll->setEnabled(isHistory || hasSelection);
    const TKProjectController& projects = m_controller.projectController();
    // Among what belongs to no project there is time that is no timer's own.
    const bool isRest = !projects.isMainItemSelected() && !projects.isProjectSelected();
    const bool hasTimers =
        hasSelection && (!isRest || std::ranges::any_of(table.selectedItems(), [](const auto& item) {
            return item->uuid().has_value();
        }));
    for (QAction* action : {actions.addToProject, actions.branch})
        action->setEnabled(hasTimers);
    const bool hasProject = projects.isProjectSelected();
    const bool isForTimers = m_focusedOutline == &table;
    // In the sidebar, "All Timers" can be copied but not renamed or deleted.
    actions.copy->setEnabled(!isForTimers || isHistory || hasSelection);
    for (QAction* action : {actions.rename, actions.deleteRows})
        action->setEnabled(isForTimers ? hasTimers : hasProject);
    actions.forceDelete->setEnabled(isForTimers && hasTimers);
    actions.paste->setEnabled(hasProject && hasCopiedTimers());
    for (QAction* action : {actions.renameProject, actions.editPatterns, actions.exportProject,
                            actions.branchProject, actions.removeProject})
        action->setEnabled(hasProject);
    actions.moveProjectUp->setEnabled(projects.canMoveProject(-1));
    actions.moveProjectDown->setEnabled(projects.canMoveProject(1));
}
