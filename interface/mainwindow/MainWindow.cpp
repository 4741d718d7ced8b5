// SPDX-License-Identifier: MIT
#include "interface/mainwindow/MainWindow.h"

#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Images.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr QSize kFirstSize(760, 540);
constexpr QSize kSmallestSize(360, 240);
constexpr int kToolIconSize = 24;
constexpr int kSumIconSize = 16;
constexpr int kSumBarMargin = 16;
constexpr int kSumBarAir = 9;
constexpr int kSumWidthInDigits = 11;

// Tests and assistive programs find every control by its own name.
template<class Named>
Named* named(Named* object, const QString& name) {
    object->setObjectName(name);
    if constexpr (std::is_base_of_v<QWidget, Named>)
        object->setAccessibleName(name);
    return object;
}

} // namespace

MainWindow::MainWindow() {
    setWindowTitle(QStringLiteral("Ticklog"));
    named(this, QStringLiteral("mainWindow"));
    setAccessibleName(QStringLiteral("Ticklog"));
    setContextMenuPolicy(Qt::NoContextMenu);
    makeActions();
    makeMenus();
    makeToolBar();
    m_splitView = named(new QSplitter(this), QStringLiteral("splitView"));
    m_splitView->setChildrenCollapsible(false);
    m_splitView->addWidget(makeOutlinePane());
    setCentralWidget(m_splitView);
    setMinimumSize(kSmallestSize);
    resize(kFirstSize);
    m_mainTable->setFocus();
}

QAction* MainWindow::add(const QString& name, const QString& text, const QKeySequence& shortcut) {
    QAction* action = named(new QAction(text, this), name);
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    return action;
}

void MainWindow::makeActions() {
    m_actions = {
        .importDatabase =
            add(QStringLiteral("importDatabase"), localized("&Import Database…"), QKeySequence::Open),
        .saveCopy = add(QStringLiteral("saveCopy"), localized("&Save a Copy As…"),
                        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)),
        .chooseDatabaseLocation =
            add(QStringLiteral("chooseDatabaseDirectory"), localized("&Choose Database Location…")),
        .restoreDefaultDatabaseLocation = add(QStringLiteral("restoreDefaultDatabaseLocation"),
                                              localized("&Restore Default Database Location")),
        .revealDatabase = add(QStringLiteral("revealDatabase"), localized("Show &Database in File Manager")),
        .closeWindow = add(QStringLiteral("closeWindow"), localized("C&lose Window"), QKeySequence::Close),
        .quit = add(QStringLiteral("quit"), localized("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q)),
        .undo = add(QStringLiteral("undo"), localized("&Undo"), QKeySequence::Undo),
        .redo = add(QStringLiteral("redo"), localized("&Redo"), QKeySequence::Redo),
        .rename = add(QStringLiteral("rename"), localized("Re&name"), QKeySequence(Qt::Key_F2)),
        .deleteRows = add(QStringLiteral("delete"), localized("&Delete"), QKeySequence::Delete),
        .selectAll = add(QStringLiteral("selectAll"), localized("Select &All"), QKeySequence::SelectAll),
        .deselectAll = add(QStringLiteral("deselectAll"), localized("D&eselect All"),
                           QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A)),
        .toggleCounting =
            add(QStringLiteral("toggleCounting"), localized("Start"), QKeySequence(Qt::CTRL | Qt::Key_T)),
        .clearTimers = add(QStringLiteral("clearTimersItem"), localized("Clear Timers")),
        .about = add(QStringLiteral("about"), localized("&About Ticklog")),
    };
    m_actions.clearTimers->setIcon(Images::named(QStringLiteral("ToolbarClear")));
    m_actions.quit->setMenuRole(QAction::QuitRole);
    m_actions.about->setMenuRole(QAction::AboutRole);
}

void MainWindow::makeMenus() {
    const auto addMenu = [this](const QString& name, const QString& title, const QList<QAction*>& items) {
        QMenu* menu = named(menuBar()->addMenu(title), name);
        for (QAction* item : items)
            item ? menu->addAction(item) : void(menu->addSeparator());
    };
    named(menuBar(), QStringLiteral("mainMenuBar"));
    const Actions& a = m_actions;
    addMenu(QStringLiteral("fileMenu"), localized("&File"),
            {a.importDatabase, a.saveCopy, nullptr, a.chooseDatabaseLocation,
             a.restoreDefaultDatabaseLocation, a.revealDatabase, nullptr, a.closeWindow, a.quit});
    addMenu(QStringLiteral("editMenu"), localized("&Edit"),
            {a.undo, a.redo, nullptr, a.rename, a.deleteRows, nullptr, a.selectAll, a.deselectAll});
    addMenu(QStringLiteral("timerMenu"), localized("&Timer"), {a.toggleCounting, nullptr, a.clearTimers});
    addMenu(QStringLiteral("helpMenu"), localized("&Help"), {a.about});
}

void MainWindow::makeToolBar() {
    m_toolBar = named(addToolBar(localized("Toolbar")), QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize({kToolIconSize, kToolIconSize});
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QAction* action : {m_actions.toggleCounting, m_actions.clearTimers}) {
        m_toolBar->addAction(action);
        QWidget* button = named(m_toolBar->widgetForAction(action), action->objectName());
        button->setFocusPolicy(Qt::TabFocus);
    }
}

QWidget* MainWindow::makeOutlinePane() {
    auto* pane = named(new QWidget, QStringLiteral("outlinePane"));
    auto* rows = new QVBoxLayout(pane);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    m_mainTable = named(new TKOutlineDisplayView, QStringLiteral("mainTable"));
    named(m_mainTable->header(), QStringLiteral("mainTableHeader"));
    rows->addWidget(m_mainTable, 1);
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    rows->addWidget(line);
    rows->addWidget(makeSumBar());
    return pane;
}

QWidget* MainWindow::makeSumBar() {
    auto* bar = named(new QWidget, QStringLiteral("sumBar"));
    auto* cells = new QHBoxLayout(bar);
    // The field has a little air of its own.
    cells->setContentsMargins(kSumBarMargin, kSumBarAir, kSumBarMargin - 4, kSumBarAir);
    m_timeSumIcon = named(new QLabel, QStringLiteral("timeSumIcon"));
    m_timeSumCaption = named(new QLabel, QStringLiteral("timeSumCaption"));
    m_timeSumCaption->setForegroundRole(QPalette::PlaceholderText);
    // A field that cannot be edited: unlike a label it can be read out and copied from.
    m_timeSum = named(new QLineEdit, QStringLiteral("timeSum"));
    m_timeSum->setReadOnly(true);
    m_timeSum->setFrame(false);
    m_timeSum->setAlignment(Qt::AlignRight);
    QFont strong = m_timeSum->font();
    strong.setBold(true);
    m_timeSum->setFont(strong);
    QPalette clear = m_timeSum->palette();
    clear.setBrush(QPalette::Base, Qt::transparent);
    m_timeSum->setPalette(clear);
    m_timeSum->setFixedWidth(QFontMetrics(strong).horizontalAdvance(u'0') * kSumWidthInDigits);
    // The cut-off will stand on the left.
    cells->addStretch(1);
    cells->addWidget(m_timeSumIcon);
    cells->addWidget(m_timeSumCaption);
    cells->addWidget(m_timeSum);
    return bar;
}

void MainWindow::showSum(const QString& time) {
    m_timeSum->setText(time);
}

void MainWindow::showSumMode(const QString& image, const QString& caption) {
    const QIcon icon = Images::named(image);
    m_timeSumIcon->setPixmap(icon.pixmap(QSize(kSumIconSize, kSumIconSize), devicePixelRatioF()));
    m_timeSumIcon->setVisible(!icon.isNull());
    m_timeSumCaption->setText(caption);
    m_timeSum->setAccessibleDescription(caption);
}

void MainWindow::showToggle(const QString& image, const QString& label) {
    m_actions.toggleCounting->setIcon(Images::named(image));
    m_actions.toggleCounting->setText(label);
    m_toolBar->widgetForAction(m_actions.toggleCounting)->setAccessibleDescription(label);
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
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

void MainWindow::updateSeen() {
    const bool isSeen = isVisible() && !isMinimized();
    if (std::exchange(m_isSeen, isSeen) != isSeen)
        Q_EMIT seenChanged(isSeen);
}
