// SPDX-License-Identifier: MIT
#include "interface/mainwindow/MainWindow.h"

#include "interface/absences/AbsenceBar.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/mainwindow/AppTypeControl.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/mainwindow/SortMenu.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/mainwindow/TKConstrainedSplitView.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/ButtonText.h"
#include "interface/shell/DividingLine.h"
#include "interface/shell/FirstSize.h"
#include "interface/shell/Images.h"
#include "interface/shell/Named.h"
#include "interface/shell/SpokenRole.h"
#include "interface/sidebar/SidebarPane.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace {

constexpr QSize kFirstSize(900, 600);
constexpr QSize kSmallestSize(480, 300);
constexpr int kSidebarWidth = 230;
constexpr int kToolIconSize = 24;
constexpr int kSearchWidth = 220;
constexpr int kSmallestSearchWidth = 110;
constexpr int kToolMargin = 6;

// Asks what has the focus for its menu, as the Menu key does, which many keyboards do not have.
void askForContextMenu() {
    QWidget* focus = QApplication::focusWidget();
    if (!focus)
        return;
    const QPoint place = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QCoreApplication::sendEvent(focus, &event);
}

// What can be wanted of the history before anything in it is chosen; it shows the history first.
bool opensTheHistory(const HistoryActions& actions, const QAction* action) {
    return std::ranges::count(actions.kinds, action) ||
           QList<const QAction*>{actions.today, actions.byProgram, actions.byProject, actions.timeSheet,
                                 actions.amend.book}
               .contains(action);
}

} // namespace

MainWindow::MainWindow()
    : m_actions(this)
    , m_historyActions(this) {
    setWindowTitle(QStringLiteral("Ticklog"));
    named(this, QStringLiteral("mainWindow"), windowTitle());
    setContextMenuPolicy(Qt::NoContextMenu);
    named(menuBar(), QStringLiteral("mainMenuBar"));
    m_projectMenu = m_actions.fill(*menuBar());
    auto* historyMenu = named(new QMenu(localized("H&istory"), menuBar()), QStringLiteral("historyMenu"),
                              localized("History"));
    menuBar()->insertMenu(m_projectMenu->menuAction(), historyMenu);
    m_historyActions.fill(*historyMenu);
    auto* viewMenu = menuBar()->findChild<QMenu*>(QStringLiteral("viewMenu"));
    viewMenu->addSeparator();
    viewMenu->addMenu(new SortMenu(
        [this]() -> QTreeView& {
            return isHistoryShown() ? static_cast<QTreeView&>(m_historyPane->outline()) : *m_mainTable;
        },
        viewMenu));
    makeToolBar();
    m_splitView = named(new TKConstrainedSplitView(this), QStringLiteral("splitView"));
    m_sidebar =
        named(new SidebarPane(m_actions.addProject, m_actions.removeProject), QStringLiteral("sidebar"));
    m_splitView->addWidget(m_sidebar);
    m_splitView->addWidget(makeOutlinePane());
    m_splitView->setSizes({kSidebarWidth, kFirstSize.width() - kSidebarWidth});
    setCentralWidget(m_splitView);
    connect(m_actions.showSidebar, &QAction::toggled, m_sidebar, &QWidget::setVisible);
    m_searchAppField->setOutlineView(m_mainTable);
    connectSides();
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F10, this), &QShortcut::activated, this, askForContextMenu);
    // Clicking the sum shows the sum of all rows again.
    connect(m_sumBar, &SumBar::sumClicked, m_mainTable, &QAbstractItemView::clearSelection);
    connect(m_sumBar, &SumBar::captionPressed, m_actions.copySummaryTime, &QAction::trigger);
    setMinimumSize(firstSize(*this, kSmallestSize));
    resize(firstSize(*this, kFirstSize));
    m_mainTable->setFocus();
}

TKOutlineDisplayView& MainWindow::projectOutline() const {
    return m_sidebar->projectOutline();
}

void MainWindow::makeToolBar() {
    m_toolBar = named(addToolBar(localized("Toolbar")), QStringLiteral("toolBar"), localized("Toolbar"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize({kToolIconSize, kToolIconSize});
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QAction* action : {m_actions.toggleCounting, m_actions.clearTimers}) {
        m_toolBar->addAction(action);
        QWidget* button = named(m_toolBar->widgetForAction(action), action->objectName());
        button->setFocusPolicy(Qt::TabFocus);
    }
    auto* rest = new QWidget;
    auto* cells = new QHBoxLayout(rest);
    cells->setContentsMargins(kToolMargin, 0, kToolMargin, 0);
    cells->addStretch(1);
    m_searchAppField = named(new TKSearchField, QStringLiteral("searchAppField"));
    m_searchAppField->setMinimumWidth(kSmallestSearchWidth);
    m_searchAppField->setMaximumWidth(kSearchWidth);
    cells->addWidget(m_searchAppField, 2);
    m_toolBar->addWidget(rest);
    m_appTypeToolbar = named(new AppTypeControl, QStringLiteral("appTypeToolbar"));
    m_toolBar->addWidget(m_appTypeToolbar);
}

QWidget* MainWindow::makeOutlinePane() {
    auto* pane = named(new QWidget, QStringLiteral("outlinePane"));
    auto* rows = new QVBoxLayout(pane);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    m_obstacleBar = named(new ObstacleBar, QStringLiteral("obstacleBar"));
    rows->addWidget(m_obstacleBar);
    m_sides = named(new QTabBar, QStringLiteral("sides"));
    m_sides->setDocumentMode(true);
    m_sides->setExpanding(false);
    m_sides->setDrawBase(false);
    for (const QAction* side : {m_actions.showTimers, m_actions.showHistory})
        m_sides->addTab(buttonText(side->text()));
    rows->addWidget(m_sides);
    m_pages = named(new QStackedWidget, QStringLiteral("pages"));
    // What only holds something is not spoken of.
    speakAs(*m_pages, QAccessible::Client);
    m_historyPane = named(new HistoryPane(m_historyActions), QStringLiteral("historyPane"));
    m_pages->addWidget(makeTimersPage());
    m_pages->addWidget(m_historyPane);
    rows->addWidget(m_pages, 1);
    return pane;
}

AbsenceBar& MainWindow::absenceBar() {
    if (!m_absenceBar) {
        m_absenceBar = new AbsenceBar;
        auto* rows = qobject_cast<QVBoxLayout*>(m_obstacleBar->parentWidget()->layout());
        rows->insertWidget(rows->indexOf(m_obstacleBar) + 1, m_absenceBar);
        QWidget* before = m_sides->previousInFocusChain();
        for (QWidget* control : m_absenceBar->controls()) {
            QWidget::setTabOrder(before, control);
            before = control;
        }
    }
    return *m_absenceBar;
}

QWidget* MainWindow::makeTimersPage() {
    auto* pane = named(new QWidget, QStringLiteral("timersPage"));
    auto* rows = new QVBoxLayout(pane);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    m_mainTable = named(new TKOutlineDisplayView, QStringLiteral("mainTable"),
                        buttonText(m_actions.showTimers->text()));
    named(m_mainTable->header(), QStringLiteral("mainTableHeader"));
    rows->addWidget(m_mainTable, 1);
    rows->addWidget(dividingLine());
    m_sumBar = named(new SumBar, QStringLiteral("sumBar"));
    rows->addWidget(m_sumBar);
    return pane;
}

void MainWindow::showInsteadOfTimers(QWidget* page) {
    const bool hadFocus = m_insteadOfTimers && m_insteadOfTimers->isAncestorOf(focusWidget());
    if (m_insteadOfTimers)
        m_insteadOfTimers->hide();
    m_insteadOfTimers = page;
    m_mainTable->setVisible(!page);
    if (page)
        qobject_cast<QVBoxLayout*>(m_mainTable->parentWidget()->layout())->insertWidget(0, page, 1);
    else if (hadFocus)
        m_mainTable->setFocus();
}

QList<QAction*> MainWindow::appMenu() const {
    QList<QAction*> commands = findChildren<QAction*>(Qt::FindDirectChildrenOnly);
    commands.removeIf([](const QAction* command) { return command->shortcut().isEmpty(); });
    return commands;
}

void MainWindow::setMenuBarShown(bool isShown) {
    menuBar()->setVisible(isShown);
    // Also those that have shortcuts at times only.
    for (QAction* command : findChildren<QAction*>(Qt::FindDirectChildrenOnly))
        isShown ? removeAction(command) : addAction(command);
}

void MainWindow::popUp(const QString& name, const QList<QAction*>& items, const QPoint& globalPosition,
                       const std::function<void(QMenu&)>& complete) {
    // It is called what it is opened for.
    auto* menu =
        named(new QMenu(this), name, focusWidget() ? focusWidget()->accessibleName() : windowTitle());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* item : items)
        item ? menu->addAction(item) : void(menu->addSeparator());
    if (complete)
        complete(*menu);
    menu->popup(globalPosition);
}

void MainWindow::showToggle(const QString& image, const QString& label) {
    m_actions.toggleCounting->setIcon(Images::symbol(image));
    m_actions.toggleCounting->setText(label);
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    windowHandle()->installEventFilter(this);
    m_isOutOfSight = false;
    updateSeen();
}

void MainWindow::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    updateSeen();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        updateSeen();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle() && event->type() == QEvent::Expose) {
        m_isOutOfSight = !windowHandle()->isExposed();
        updateSeen();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::connectSides() {
    // The commands, the tabs and what is shown follow each other.
    connect(m_sides, &QTabBar::currentChanged, this, [this](int side) { setHistoryShown(side == 1); });
    for (const QAction* side : {m_actions.showTimers, m_actions.showHistory})
        connect(side, &QAction::triggered, this, [this] { setHistoryShown(isHistoryShown()); });
    for (QAction* action : m_historyActions.all()) {
        action->setEnabled(opensTheHistory(m_historyActions, action));
        if (action->isEnabled())
            connect(action, &QAction::triggered, this, [this] { setHistoryShown(true); });
    }
}

void MainWindow::setHistoryShown(bool isShown) {
    (isShown ? m_actions.showHistory : m_actions.showTimers)->setChecked(true);
    m_sides->setCurrentIndex(isShown);
    if (m_pages->currentIndex() == int(isShown))
        return;
    const bool hadFocus = m_pages->currentWidget()->isAncestorOf(focusWidget());
    m_pages->setCurrentIndex(isShown);
    QWidget* rows = isShown ? static_cast<QWidget*>(&m_historyPane->outline()) : m_mainTable;
    m_searchAppField->setOutlineView(rows);
    for (QAction* action : m_historyActions.all())
        action->setEnabled(isShown || opensTheHistory(m_historyActions, action));
    // In the history these keys zoom.
    m_actions.expandAll->setShortcut(isShown ? Qt::ALT | Qt::Key_Plus : Qt::CTRL | Qt::Key_Plus);
    m_actions.collapseAll->setShortcut(isShown ? Qt::ALT | Qt::Key_Minus : Qt::CTRL | Qt::Key_Minus);
    m_historyActions.offerZoom(isShown);
    if (hadFocus)
        rows->setFocus();
    updateSeen();
    Q_EMIT historyShownChanged(isShown);
}

void MainWindow::updateSeen() {
    const bool isInSight = isVisible() && !isMinimized() && !m_isOutOfSight;
    const bool isSeen = isInSight && !isHistoryShown();
    const bool isHistorySeen = isInSight && isHistoryShown();
    if (std::exchange(m_isSeen, isSeen) != isSeen)
        Q_EMIT seenChanged(isSeen);
    if (std::exchange(m_isHistorySeen, isHistorySeen) != isHistorySeen)
        Q_EMIT historySeenChanged(isHistorySeen);
}
