// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKController.h"

#include "Classes/common/Settings.h"
#include "Classes/report/ReportNames.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/labels/TKLabelViewController.h"
#include "interface/mainwindow/AppTypeControl.h"
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Images.h"
#include "interface/shell/PlainText.h"
#include "interface/sidebar/SidebarPane.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QLineEdit>

#include <cmath>

namespace {

Seconds untilNextSecond(Seconds time) {
    return std::floor(time) + 1 - time;
}

} // namespace

TKController::TKController(Platform& platform, Alerts& alerts, SystemIdleTime::Exit exit,
                           const TimeTracker::MakeActivator& makeActivator)
    : m_platform(platform)
    , m_alerts(alerts)
    , m_engine(platform, {.exit = std::move(exit),
                          .checkAccessibilityTrust =
                              [this] { m_appDelegate.authorization().checkAccessibilityTrust(); },
                          .makeActivator = makeActivator})
    , m_projectNodes(m_engine.services().store)
    , m_projects(m_engine.services().store, platform.defaults, platform.folders.documents)
    , m_listOptions(platform.defaults, platform.notifications)
    , m_shown(m_window, m_engine.tracker(), m_projects, platform.runLoop, m_listOptions,
              [this](const auto& item, const QString& name) { rename(item, name); })
    , m_pasteboard(m_engine.tracker(), m_projects)
    , m_timer(m_engine.tracker(), m_engine.services(), *this, [this] { saveSettingsToDisk(); })
    , m_database(
          m_engine.tracker(), m_engine.services().store, platform.defaults, platform.folders,
          {.projects = [this] { return m_projects.arrayRepresentation(); },
           .setProjects = [this](const PropertyListValue& records) { m_projects.setProjects(records); },
           .computeTime = [this] { m_timer.refreshDisplay(); },
           .timersReplaced = [this] { m_undoStack.clear(); }})
    , m_documents(m_database, alerts, platform.fileViewer,
                  {.save = [this] { saveSettingsToDisk(); }, .imported = [this] { m_undoStack.clear(); }})
    , m_loginItem(platform.loginItems)
    , m_appDelegate(*this, platform, alerts)
    , m_obstacle(m_window, m_appDelegate.presence(), m_engine.trouble(), platform) {
    connectFields();
    connectOutline();
    TKController::showToggle(QStringLiteral("ToolbarStart"), localized("Start"));
    m_database.loadMainStore();
    makeControllers();
    connectSidebar();
    makeSidebarTimes();
    m_timer.registerForSystemSleep(platform.power);
    const auto counted = [&defaults = platform.defaults] {
        return std::pair(defaults.boolForKey(kIncludeSelfInSumofTimes),
                         defaults.boolForKey(kIncludeIdleInSumofTimes));
    };
    // To unfold everything changes a setting for each row, and to find whose every timer is takes its time.
    m_defaultsChanges = platform.notifications.observe(
        kUserDefaultsDidChangeNotification, [this, counted, before = counted()](const Notification&) mutable {
            if (std::exchange(before, counted()) != before)
                m_sidebarTimes->forgetRows();
            reload();
        });
    m_resets =
        m_engine.tracker().observe(kLastResetDateKey, [this](const ObservedChange&) { showLastReset(); });
    showLastReset();
    m_obstacle.show();
}

TKController::~TKController() {
    TimePasteboard::keepClipboard();
    // Closing the window must not call a controller that is partly destroyed.
    m_reactions.reset();
}

void TKController::makeControllers() {
    m_tkLabelProjectViewController = new TKLabelViewController(
        m_window.projectMenu(), [this](int tag) { m_projectController->setSelectedColorTag(tag); });
    m_projectController.emplace(m_projects, m_projectNodes, m_platform.notifications,
                                m_window.projectOutline(), m_alerts, m_undoStack, projectServices());
    m_exportController.emplace(m_engine.tracker(), m_database, m_engine.services().store, m_platform,
                               m_alerts, [this] { timersCleared(); });
    m_commands.emplace(*this, m_undoStack);
}

std::shared_ptr<TimeStoreCategory>
TKController::timeStoreCategoryForProjectDict(const ProjectRecord& record) {
    auto category = m_projectNodes.timeStoreCategoryForProjectDict(record);
    m_engine.tracker().updateTimeStoreCategory(*category, record.flattenedMembers());
    return category;
}

void TKController::searchText(const QString& text) {
    m_shown.searchText(text);
    m_projectController->refreshProject();
    m_sidebarTimes->forgetRows();
    m_sidebarTimes->refresh();
}

void TKController::find() {
    m_window.searchAppField().setFocus(Qt::ShortcutFocusReason);
    m_window.searchAppField().selectAll();
}

TKProjectController::MainController TKController::projectServices() {
    return {.showWithCategory = [this](const auto& category,
                                       const auto& record) { showWithCategory(category, record); },
            .branchUUIDs = [this](const auto& timers) { branchUUIDs(timers); },
            .blockExpansionSaveWhileSearching = [this] { return blockExpansionSaveWhileSearching(); },
            .setSelectedTag = [this](int tag) { m_tkLabelProjectViewController->setSelectedTag(tag); },
            .writeProject = [this](int row) { return m_pasteboard.writeProject(row); },
            .findRest = [this] { m_sidebarTimes->findRest(); }};
}

void TKController::reload() {
    m_engine.tracker().userDefaultsChanged();
    m_shown.sum().forgetRows();
    refreshTimeSum();
}

void TKController::connectFields() {
    QObject::connect(&m_window.searchAppField(), &QLineEdit::textChanged, &*m_reactions,
                     [this](const QString& text) { searchText(text); });
    QObject::connect(&m_window.sumBar().cutoff(), &CutoffSlider::secondsChanged, &*m_reactions,
                     [this](float seconds) { setCutoffValue(seconds); });
    QObject::connect(&m_undoStack, &QUndoStack::indexChanged, &*m_reactions, [this] {
        m_shown.timersEdited();
        m_sidebarTimes->forgetRows();
        refreshTimeSum();
    });
}

void TKController::connectSidebar() {
    TKOutlineDisplayView& outline = m_window.projectOutline();
    outline.setRedirectToOutlineView(&m_window.mainTable());
    QObject::connect(
        &outline, &TKOutlineDisplayView::menuRequested, &*m_reactions, [this](const QPoint& place) {
            m_window.popUp(QStringLiteral("projectContextMenu"), m_window.actions().forProjects(), place,
                           [this](QMenu& menu) { m_projectController->addColorLabels(menu); });
        });
    QObject::connect(&outline, &TKOutlineDisplayView::selectionDidChange, &*m_reactions, [this] {
        m_commands->update();
        refreshTimeSum();
    });
}

void TKController::makeSidebarTimes() {
    m_sidebarTimes.emplace(SidebarTimes::Ground{.tracker = m_engine.tracker(),
                                                .projects = m_projects,
                                                .rows = m_projectController->model(),
                                                .options = m_listOptions,
                                                .isSeen = [this] { return m_window.isSeen(); },
                                                .search = [this] { return m_window.searchAppField().text(); },
                                                .cutoff = [this] { return m_shown.cutoff(); },
                                                .restChanged =
                                                    [this] {
                                                        if (m_projectController->currentProject() ==
                                                            m_projects.restItem())
                                                            m_projectController->refreshProject();
                                                    }});
    QObject::connect(&m_listOptions, &ListOptions::changed, &*m_reactions, [this] { showListOptions(); });
    QObject::connect(&m_window, &MainWindow::seenChanged, &*m_reactions, [this] {
        m_sidebarTimes->forgetRows();
        m_sidebarTimes->refresh();
    });
    QObject::connect(&m_window, &MainWindow::historyShownChanged, &*m_reactions,
                     [this] { m_sidebarTimes->clear(); });
    showListOptions();
}

void TKController::showListOptions() {
    m_window.sidebar().showTimes(m_listOptions.hasProjectTimes());
    m_projectController->model().wantRest(m_listOptions.hasProjectTimes());
    m_sidebarTimes->forgetRows();
    m_sidebarTimes->refresh();
    m_window.mainTable().setShareBars(m_listOptions.hasShareBars());
    ProgramIcons* icons = m_listOptions.hasIcons() ? m_programIcons : nullptr;
    m_window.mainTable().setIcons(icons);
    m_window.historyPane().outline().setIcons(icons);
    m_appDelegate.statusMenu().setIcons(icons);
}

void TKController::setProgramIcons(ProgramIcons& icons) {
    m_programIcons = &icons;
    showListOptions();
}

void TKController::connectOutline() {
    TKOutlineDisplayView& table = m_window.mainTable();
    QObject::connect(&m_shown, &ShownTimers::selectionChanged, &*m_reactions, [this] { selectionChanged(); });
    QObject::connect(&m_window, &MainWindow::seenChanged, &*m_reactions, [this] { refreshTimeSum(); });
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
    table.serve({.dataCell = [this](const QModelIndex& row) { return m_shown.cell(row); },
                 .branchNode = [this](const auto& item) { branchNode(item->node()); },
                 .deleteKey = [this](bool forceDelete) { tableViewDidReceiveDeleteKey(forceDelete); },
                 .writeItems = [this](const QModelIndexList& rows) { return m_pasteboard.writeItems(rows); },
                 .invitation = [this] { return m_shown.invitation(); }});
}

void TKController::awakeFromNib() {
    if (!m_engine.tracker().isAXEnabled()) {
        m_setupWindow.emplace(
            SetupWindow::Commands{.relaunch = [this] { m_appDelegate.authorization().relaunchApp(); },
                                  .quit = [this] { m_appDelegate.terminate(); }});
        m_setupWindow->makeKeyAndOrderFront();
        m_window.close();
        return;
    }
    reloadAppType();
    if (!m_platform.defaults.boolForKey(kStartTicklogOnNextLaunch))
        return;
    m_platform.defaults.setObject(kStartTicklogOnNextLaunch, false);
    m_timer.startTimer();
}

QWidget& TKController::shownWindow() {
    if (m_setupWindow)
        return *m_setupWindow;
    return m_window;
}

void TKController::setWindowStateShown(bool isShown) {
    if (!isShown)
        return;
    if (m_setupWindow)
        return m_setupWindow->makeKeyAndOrderFront();
    m_window.setWindowState((m_window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

void TKController::reloadAppType() {
    const AppPresence& presence = m_appDelegate.presence();
    m_window.appTypeToolbar().reload({.showsDockIcon = presence.showDockIcon(),
                                      .showsMenuBarItem = presence.showMenuBarItem(),
                                      .hasTray = !presence.isTrayMissing()});
}

void TKController::showDisplayStateMenu(QWidget* sender) {
    auto* command = new QAction(QStringLiteral("Test"), &m_window);
    QObject::connect(command, &QAction::triggered, &*m_reactions, [this] { toggleDockIcon(); });
    m_window.appTypeToolbar().showDisplayStateMenu(sender, *command);
}

void TKController::showToggle(const QString& image, const QString& label) {
    m_window.showToggle(image, label);
}

void TKController::showRecordingBadge(bool isRecording) {
    QApplication::setWindowIcon(Images::application(isRecording));
}

void TKController::refreshTimeSum() {
    m_shown.sum().refresh();
    if (m_sidebarTimes)
        m_sidebarTimes->refresh();
    m_obstacle.show();
}

// The rows that are counted, and the sum, each turn at a moment of their own.
std::optional<Instant> TKController::nextTurn() const {
    const TimeTracker& tracker = m_engine.tracker();
    if (!tracker.isRunning() || (!m_window.isSeen() && !m_appDelegate.isMenuOpen()))
        return std::nullopt;
    const std::optional<Instant> counted = tracker.timeActivator().startDate();
    Seconds rest = 1;
    for (const TimeStoreNode* node : {static_cast<TimeStoreNode*>(tracker.activeStoreApp()),
                                      static_cast<TimeStoreNode*>(tracker.activeStoreWindow())})
        if (node)
            rest = std::min(rest, untilNextSecond(node->activeTime()));
    if (const auto ofSum = m_shown.sum().untilTurn())
        rest = std::min(rest, *ofSum);
    return counted.value_or(m_platform.clock.instant()) +
           std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(rest)) +
           std::chrono::milliseconds(1);
}

void TKController::showLastReset() {
    const QString lastReset = m_engine.tracker().lastResetDateDisplayString();
    m_window.actions().clearTimers->setToolTip(PlainText::toolTip(lastReset));
}

void TKController::selectionChanged() {
    if (m_commands)
        m_commands->update();
    refreshTimeSum();
}

std::optional<QString> TKController::shownProject() const {
    const ProjectList::Project shown = m_projectController->currentProject();
    if (shown == m_projects.restItem())
        return kNoProject;
    return shown == m_projects.mainItem() ? std::nullopt : std::optional(shown->label());
}

int TKController::colorOfProject(const QString& name) const {
    for (const ProjectList::Project& project : m_projects.projects())
        if (project->label() == name)
            return project->colorTag();
    return 0;
}

QString TKController::versionString() {
    QString text = localized("%@ (build %@)");
    const qsizetype first = text.indexOf(QLatin1String("%@"));
    text.replace(first, 2, QStringLiteral(TICKLOG_VERSION));
    return text.replace(QLatin1String("%@"), QStringLiteral(TICKLOG_VERSION));
}
