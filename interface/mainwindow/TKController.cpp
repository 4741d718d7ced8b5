// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKController.h"

#include "Classes/Settings.h"
#include "interface/mainwindow/RenameCommand.h"
#include "interface/outline/ProgramCell.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Images.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QApplication>
#include <QItemSelectionModel>

#include <cmath>

TKController::TKController(Platform& platform, Alerts& alerts, SystemIdleTime::Exit exit)
    : m_platform(platform)
    , m_alerts(alerts)
    , m_engine(platform, {.exit = std::move(exit), .checkAccessibilityTrust = {}})
    , m_model(TimeTreeModel::sourceOf(m_engine.tracker()), platform.runLoop,
              [this](const auto& item, const QString& name) { rename(item, name); })
    , m_timer(m_engine.tracker(), m_engine.services(), *this, [this] { saveSettingsToDisk(); })
    , m_database(m_engine.tracker(), m_engine.registry(), platform.defaults, platform.folders, platform.log,
                 {.projects = {}, .setProjects = {}, .computeTime = [this] { m_timer.computeTime(); }})
    , m_documents(m_database, alerts, [this] { m_undoStack.clear(); })
    , m_appDelegate(*this, platform, alerts) {
    m_model.setLive(false);
    m_window.mainTable().setTimeModel(m_model);
    connectActions();
    connectOutline();
    showToggle(QStringLiteral("ToolbarStart"), localized("Start"));
    m_database.loadMainStore();
    m_timer.registerForSystemSleep(platform.power);
    m_defaultsChanges = platform.notifications.observe(kUserDefaultsDidChangeNotification,
                                                       [this](const Notification&) { refreshTimeSum(); });
    m_resets =
        m_engine.tracker().observe(kLastResetDateKey, [this](const ObservedChange&) { showLastReset(); });
    showLastReset();
}

TKController::~TKController() {
    // What closes the window must not find a controller that is half gone.
    m_window.disconnect();
    m_window.mainTable().disconnect();
}

void TKController::connectActions() {
    const MainWindow::Actions& actions = m_window.actions();
    const auto connect = [this](QAction* action, auto react) {
        QObject::connect(action, &QAction::triggered, &m_window, react);
    };
    connect(actions.importDatabase, [this] { m_documents.openDocument(); });
    connect(actions.saveCopy, [this] { m_documents.saveCopy(); });
    connect(actions.chooseDatabaseLocation, [this] { chooseDatabaseDirectory(); });
    connect(actions.restoreDefaultDatabaseLocation, [this] { restoreDefaultDatabaseLocation(); });
    connect(actions.revealDatabase, [this] { revealDatabase(); });
    connect(actions.closeWindow, [this] { m_window.close(); });
    connect(actions.quit, [this] { m_appDelegate.terminate(); });
    connect(actions.undo, [this] { m_undoStack.undo(); });
    connect(actions.redo, [this] { m_undoStack.redo(); });
    connect(actions.rename, [this] { renameSelected(); });
    connect(actions.deleteRows, [this] { tableViewDidReceiveDeleteKey(false); });
    connect(actions.selectAll, [this] { m_window.mainTable().selectAll(); });
    connect(actions.deselectAll, [this] { deselectAll(); });
    connect(actions.toggleCounting, [this] { m_timer.toggleCounting(); });
    connect(actions.clearTimers, [this] { clearTimers(); });
    connect(actions.about, [this] { m_appDelegate.showAboutBox(); });
    QObject::connect(&m_undoStack, &QUndoStack::canUndoChanged, actions.undo, &QAction::setEnabled);
    QObject::connect(&m_undoStack, &QUndoStack::canRedoChanged, actions.redo, &QAction::setEnabled);
    for (QAction* action :
         {actions.undo, actions.redo, actions.rename, actions.deleteRows, actions.deselectAll})
        action->setEnabled(false);
}

void TKController::connectOutline() {
    TKOutlineDisplayView& table = m_window.mainTable();
    QObject::connect(&table, &TKOutlineDisplayView::selectionDidChange, &m_window,
                     [this] { selectionChanged(); });
    table.setInvitation(localized("Press Start and work on; the programs you use will appear here."));
    table.setHighlightOnMouseOver(true);
    table.setDeleteHandler([this](bool forceDelete) { tableViewDidReceiveDeleteKey(forceDelete); });
    table.setBranchNode([this](const auto& item) { m_engine.tracker().branchNode(item->node()); });
    table.setDataCell(
        [this, programCell = ProgramCell({.isProjectShown = [] { return false; },
                                          .tags = [](const Identity&) { return ColorTags(); },
                                          .applications = [] { return TimeStoreItem::Children(); }})](
            const QModelIndex& row) {
            return programCell.cell(*m_model.item(row), !row.parent().isValid());
        });
    // A selected application that gets another window counts that window through itself from now on.
    QObject::connect(&m_model, &QAbstractItemModel::rowsInserted, &m_window, [this] { forgetSummedRows(); });
    QObject::connect(&m_model, &QAbstractItemModel::rowsRemoved, &m_window, [this] { forgetSummedRows(); });
    QObject::connect(&m_window, &MainWindow::seenChanged, &m_window, [this](bool isSeen) {
        m_model.setLive(isSeen);
        refreshTimeSum();
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

const TimeStoreItem::Children& TKController::summedRows() const {
    if (!m_summedRows)
        m_summedRows = withoutDoubleCounting(m_window.mainTable().selectedItems());
    return *m_summedRows;
}

TKController::Sum TKController::sum(int kind) const {
    constexpr int kAllObjects = 1;
    if (kind == kAllObjects || summedRows().empty())
        return {m_engine.tracker().totalTime(), SumMode::Total};
    return {summedTime(summedRows(), {}), SumMode::Selected};
}

QString TKController::totalTimeStringForAllObjects(int kind, SumMode* outMode) const {
    constexpr int kInWords = 2;
    const Sum result = sum(kind);
    if (!outMode)
        return sumTitle(result.mode, TimeTracker::timeStringForDouble(result.seconds));
    *outMode = result.mode;
    return kind == kInWords ? m_engine.tracker().humanTimeStringForDouble(result.seconds)
                            : TimeTracker::timeStringForDouble(result.seconds);
}

void TKController::refreshTimeSum() {
    if (!m_window.isSeen())
        return;
    const Sum shown = sum(0);
    // Ten times a second this ends here.
    const double second = std::floor(shown.seconds);
    if (shown.mode == m_lastSumMode && second == m_lastSumSecond)
        return;
    m_lastSumSecond = second;
    m_window.showSum(TimeTracker::timeStringForDouble(shown.seconds));
    if (std::exchange(m_lastSumMode, shown.mode) != shown.mode)
        m_window.showSumMode(sumImage(shown.mode), sumCaption(shown.mode));
}

void TKController::selectionChanged() {
    forgetSummedRows();
    const bool hasSelection = m_window.mainTable().selectionModel()->hasSelection();
    const MainWindow::Actions& actions = m_window.actions();
    for (QAction* action : {actions.rename, actions.deleteRows, actions.deselectAll})
        action->setEnabled(hasSelection);
    refreshTimeSum();
}

QString TKController::versionString() {
    QString text = localized("%@ (build %@)");
    const qsizetype first = text.indexOf(QLatin1String("%@"));
    text.replace(first, 2, QStringLiteral(TICKLOG_VERSION));
    return text.replace(QLatin1String("%@"), QStringLiteral(TICKLOG_VERSION));
}
