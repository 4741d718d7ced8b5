// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKController.h"

#include "Classes/Settings.h"
#include "interface/labels/TKLabelViewController.h"
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/pasteboard/TimeMimeData.h"
#include "interface/shell/Images.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QApplication>
#include <QLineEdit>

TKController::TKController(Platform& platform, Alerts& alerts, SystemIdleTime::Exit exit)
    : m_platform(platform)
    , m_alerts(alerts)
    , m_engine(platform, {.exit = std::move(exit), .checkAccessibilityTrust = {}})
    , m_projectNodes(m_engine.services().store)
    , m_projects(m_engine.services().store, platform.defaults, platform.folders.documents)
    , m_appTreeController(TimeTreeModel::sourceOf(m_engine.tracker()), platform.runLoop,
                          [this](const auto& item, const QString& name) { rename(item, name); })
    , m_categoryTreeController(std::nullopt, platform.runLoop,
                               [this](const auto& item, const QString& name) { rename(item, name); })
    , m_programCell(
          {.isProjectShown = [this] { return !mainItemIsSelected(); },
           .tags = [this](const Identity& timer) { return m_projects.reverseProjectCache()->tags(timer); },
           .applications = [this] { return m_engine.tracker().timeSet(); }})
    , m_appSelection(&m_appTreeController)
    , m_categorySelection(&m_categoryTreeController)
    , m_timer(m_engine.tracker(), m_engine.services(), *this, [this] { saveSettingsToDisk(); })
    , m_database(
          m_engine.tracker(), m_engine.registry(), platform.defaults, platform.folders, platform.log,
          {.projects = [this] { return m_projects.arrayRepresentation(); },
           .setProjects = [this](const PropertyListValue& records) { m_projects.setProjects(records); },
           .computeTime = [this] { m_timer.computeTime(); }})
    , m_documents(m_database, alerts, [this] { m_undoStack.clear(); })
    , m_appDelegate(*this, platform, alerts) {
    m_appTreeController.setLive(false);
    m_categoryTreeController.setLive(false);
    for (TimeTreeModel* tree : {&m_appTreeController, &m_categoryTreeController})
        tree->setIsFrozen([this](TimeStoreItem& item, bool isTopLevel) {
            return m_programCell.isFrozen(item, isTopLevel);
        });
    showTree(m_appTreeController);
    connectActions();
    connectOutline();
    TKController::showToggle(QStringLiteral("ToolbarStart"), localized("Start"));
    m_database.loadMainStore();
    m_projectController.emplace(m_projects, m_projectNodes, platform.notifications, m_window.projectOutline(),
                                alerts, m_undoStack, projectServices());
    m_exportController.emplace(m_engine.tracker(), m_database, platform, alerts, [this] { timersCleared(); });
    connectProjectActions();
    m_timer.registerForSystemSleep(platform.power);
    m_defaultsChanges = platform.notifications.observe(kUserDefaultsDidChangeNotification,
                                                       [this](const Notification&) { reload(); });
    m_resets =
        m_engine.tracker().observe(kLastResetDateKey, [this](const ObservedChange&) { showLastReset(); });
    showLastReset();
}

TKController::~TKController() {
    // A clipboard that still holds rows could no longer say how they read: it is made whole before they go.
    keepClipboard();
    // What closes the window must not find a controller that is half gone.
    m_reactions.reset();
    m_window.mainTable().setModel(nullptr);
}

TKProjectController::MainController TKController::projectServices() {
    return {
        .showWithCategory = [this](const auto& category,
                                   const auto& record) { showWithCategory(category, record); },
        .branchUUIDs = [this](const auto& timers) { branchUUIDs(timers); },
        .blockExpansionSaveWhileSearching = [this] { return blockExpansionSaveWhileSearching(); },
        .setSelectedTag = [this](int tag) { m_window.tkLabelProjectViewController().setSelectedTag(tag); },
        .writeProject =
            [this](int row) { return std::make_unique<TimeMimeData>(pasteboardProvider(), row); }};
}

void TKController::reload() {
    m_engine.tracker().userDefaultsChanged();
    refreshTimeSum();
}

void TKController::connectActions() {
    const MainActions& actions = m_window.actions();
    const auto connect = [this](QAction* action, auto react) {
        QObject::connect(action, &QAction::triggered, &*m_reactions, react);
    };
    connect(actions.importDatabase, [this] { m_documents.openDocument(); });
    connect(actions.saveCopy, [this] { m_documents.saveCopy(); });
    connect(actions.chooseDatabaseLocation, [this] { chooseDatabaseDirectory(); });
    connect(actions.restoreDefaultDatabaseLocation, [this] { restoreDefaultDatabaseLocation(); });
    connect(actions.revealDatabase, [this] { revealDatabase(); });
    connect(actions.exportShown, [this] { m_exportController->exportShownToCSV(); });
    connect(actions.exportAll, [this] { m_exportController->exportAllToCSV(); });
    connect(actions.closeWindow, [this] { m_window.close(); });
    connect(actions.quit, [this] { m_appDelegate.terminate(); });
    connect(actions.undo, [this] { m_undoStack.undo(); });
    connect(actions.redo, [this] { m_undoStack.redo(); });
    connect(actions.copy, [this] { m_focusedOutline->copy(); });
    connect(actions.copySummaryTime, [this] { copySummaryTime(); });
    connect(actions.rename, [this] { m_focusedOutline->editName(); });
    connect(actions.deleteRows, [this] { m_focusedOutline->deleteRows(); });
    connect(actions.forceDelete, [this] { m_focusedOutline->forceDelete(); });
    connect(actions.selectAll, [this] { m_window.mainTable().selectAll(); });
    connect(actions.deselectAll, [this] { deselectAll(); });
    connect(actions.find, [this] { find(); });
    connect(actions.expandAll, [this] { m_window.mainTable().expandAllRows(); });
    connect(actions.collapseAll, [this] { m_window.mainTable().collapseAllRows(); });
    connect(actions.toggleCounting, [this] { m_timer.toggleCounting(); });
    connect(actions.branch, [this] { branchSelected(); });
    connect(actions.clearTimers, [this] { clearTimers(); });
    connect(actions.about, [this] { m_appDelegate.showAboutBox(); });
    QObject::connect(&m_undoStack, &QUndoStack::canUndoChanged, actions.undo, &QAction::setEnabled);
    QObject::connect(&m_undoStack, &QUndoStack::canRedoChanged, actions.redo, &QAction::setEnabled);
    QObject::connect(&m_undoStack, &QUndoStack::indexChanged, &*m_reactions, [this] {
        forgetSummedRows();
        refreshTimeSum();
    });
    actions.undo->setEnabled(false);
    actions.redo->setEnabled(false);
    QObject::connect(&m_window.searchAppField(), &QLineEdit::textChanged, &*m_reactions,
                     [this](const QString& text) { searchText(text); });
    QObject::connect(&m_window.sumBar().cutoff(), &CutoffSlider::secondsChanged, &*m_reactions,
                     [this](float seconds) { setCutoffValue(seconds); });
    setCutoffValue(0);
}

void TKController::connectProjectActions() {
    const MainActions& actions = m_window.actions();
    const auto connect = [this](QAction* action, auto react) {
        QObject::connect(action, &QAction::triggered, &*m_reactions,
                         [this, react] { std::invoke(react, *m_projectController); });
    };
    connect(actions.addProject, &TKProjectController::addProject);
    connect(actions.renameProject, &TKProjectController::renameProject);
    connect(actions.moveProjectUp, [](auto& controller) { controller.moveProject(-1); });
    connect(actions.moveProjectDown, [](auto& controller) { controller.moveProject(1); });
    connect(actions.branchProject, &TKProjectController::branchProject);
    connect(actions.removeProject, &TKProjectController::tableViewDidRecieveDeleteKey);
    TKOutlineDisplayView& outline = m_window.projectOutline();
    outline.setDeleteHandler([this](bool) { m_projectController->tableViewDidRecieveDeleteKey(); });
    m_window.tkLabelProjectViewController().setProjectController(
        [this](int tag) { m_projectController->setSelectedColorTag(tag); });
    outline.setRedirectToOutlineView(&m_window.mainTable());
    QObject::connect(
        &outline, &TKOutlineDisplayView::menuRequested, &*m_reactions, [this](const QPoint& place) {
            m_window.popUp(QStringLiteral("projectContextMenu"), m_window.actions().forProjects(), place);
        });
    QObject::connect(&outline, &TKOutlineDisplayView::selectionDidChange, &*m_reactions, [this] {
        updateActions();
        refreshTimeSum();
    });
    updateActions();
}

void TKController::updateActions() {
    const MainActions& actions = m_window.actions();
    const bool hasSelection = m_window.mainTable().selectionModel()->hasSelection();
    for (QAction* action : {actions.deselectAll, actions.branch})
        action->setEnabled(hasSelection);
    const bool hasProject = m_projectController && !m_projectController->isMainItemSelected();
    const bool isForTimers = m_focusedOutline == &m_window.mainTable();
    for (QAction* action : {actions.copy, actions.rename, actions.deleteRows})
        action->setEnabled(isForTimers ? hasSelection : hasProject);
    actions.forceDelete->setEnabled(isForTimers && hasSelection);
    if (!m_projectController)
        return;
    for (QAction* action : {actions.renameProject, actions.branchProject, actions.removeProject})
        action->setEnabled(hasProject);
    actions.moveProjectUp->setEnabled(m_projectController->canMoveProject(-1));
    actions.moveProjectDown->setEnabled(m_projectController->canMoveProject(1));
}

void TKController::connectOutline() {
    TKOutlineDisplayView& table = m_window.mainTable();
    m_focusedOutline = &table;
    // A menu opened by the keyboard takes the focus, so the last one counts.
    QObject::connect(qApp, &QApplication::focusChanged, &*m_reactions, [this](QWidget*, QWidget* focused) {
        auto* outline = qobject_cast<TKOutlineDisplayView*>(focused);
        if (outline != &m_window.mainTable() && outline != &m_window.projectOutline())
            return;
        m_focusedOutline = outline;
        updateActions();
    });
    QObject::connect(&table, &TKOutlineDisplayView::selectionDidChange, &*m_reactions,
                     [this] { selectionChanged(); });
    QObject::connect(&table, &TKOutlineDisplayView::itemDidExpand, &*m_reactions, [this](const auto& item) {
        if (item->uuid() && m_projectController)
            m_projectController->expandUUID(*item->uuid());
    });
    QObject::connect(&table, &TKOutlineDisplayView::itemDidCollapse, &*m_reactions, [this](const auto& item) {
        if (item->uuid() && m_projectController)
            m_projectController->collapseUUID(*item->uuid());
    });
    QObject::connect(
        &table, &TKOutlineDisplayView::menuRequested, &*m_reactions, [this](const QPoint& place) {
            m_window.popUp(QStringLiteral("timerContextMenu"), m_window.actions().forTimers(), place);
        });
    table.setHighlightOnMouseOver(true);
    table.setDeleteHandler([this](bool forceDelete) { tableViewDidReceiveDeleteKey(forceDelete); });
    table.setBranchNode([this](const auto& item) { branchNode(item->node()); });
    table.setWriteItems([this](const QModelIndexList& rows) { return writeItems(rows); });
    table.setDataCell([this](const QModelIndex& row) {
        return m_programCell.cell(*m_shown->item(row), !row.parent().isValid());
    });
    for (TimeTreeModel* tree : {&m_appTreeController, &m_categoryTreeController}) {
        // A selected application that gets another window counts that window through itself from now on.
        QObject::connect(tree, &QAbstractItemModel::rowsInserted, &*m_reactions,
                         [this] { forgetSummedRows(); });
        QObject::connect(tree, &QAbstractItemModel::rowsRemoved, &*m_reactions,
                         [this] { forgetSummedRows(); });
        QObject::connect(tree, &QAbstractItemModel::modelReset, &*m_reactions,
                         [this] { forgetSummedRows(); });
    }
    QObject::connect(&m_window, &MainWindow::seenChanged, &*m_reactions, [this](bool isSeen) {
        m_shown->setLive(isSeen);
        refreshTimeSum();
        restoreExpansion();
    });
}

void TKController::awakeFromNib() {
    if (!m_engine.tracker().isAXEnabled())
        return;
    if (!m_platform.defaults.boolForKey(kStartTicklogOnNextLaunch))
        return;
    m_platform.defaults.setObject(kStartTicklogOnNextLaunch, false);
    m_timer.startTimer();
}

void TKController::setWindowStateShown(bool isShown) {
    if (!isShown)
        return;
    m_window.setWindowState((m_window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

void TKController::showToggle(const QString& image, const QString& label) {
    m_window.showToggle(image, label);
}

void TKController::showRecordingBadge(bool isRecording) {
    QApplication::setWindowIcon(Images::application(isRecording));
}

void TKController::showLastReset() {
    m_window.actions().clearTimers->setToolTip(m_engine.tracker().lastResetDateDisplayString());
}

void TKController::selectionChanged() {
    forgetSummedRows();
    updateActions();
    showInvitation();
    refreshTimeSum();
}

QString TKController::versionString() {
    QString text = localized("%@ (build %@)");
    const qsizetype first = text.indexOf(QLatin1String("%@"));
    text.replace(first, 2, QStringLiteral(TICKLOG_VERSION));
    return text.replace(QLatin1String("%@"), QStringLiteral(TICKLOG_VERSION));
}
