// SPDX-License-Identifier: MIT
#include "interface/shell/AppPresence.h"

#include "Classes/common/Settings.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/StatusItem.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QWindow>

namespace {

using WayBack = ClosingWindow::WayBack;

// A window of its own, neither a menu nor part of another window.
bool isListable(const QWindow& window) {
    return window.isTopLevel() && (window.type() == Qt::Window || window.type() == Qt::Dialog);
}

void setAllListed(TaskBar& taskBar, bool isListed) {
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        if (isListable(*window) && window->isVisible())
            taskBar.setListed(window->winId(), isListed);
}

} // namespace

// Tells the task bar about each of our windows when it is exposed: then the window manager knows it.
class AppPresence::Listing : public QObject {
public:
    explicit Listing(TaskBar& taskBar)
        : m_taskBar(taskBar) {
        setAllListed(m_taskBar, false);
        qApp->installEventFilter(this);
    }

    ~Listing() override { setAllListed(m_taskBar, true); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Expose)
            return false;
        const auto* window = qobject_cast<QWindow*>(object);
        if (window && isListable(*window) && window->isExposed())
            m_taskBar.setListed(window->winId(), false);
        return false;
    }

private:
    TaskBar& m_taskBar;
};

AppPresence::AppPresence(MainWindow& window, StatusMenu& menu, Platform& platform, Alerts& alerts,
                         Program program)
    : m_window(window)
    , m_menu(menu)
    , m_platform(platform)
    , m_alerts(alerts)
    , m_program(std::move(program)) {}

AppPresence::~AppPresence() = default;

void AppPresence::begin() {
    QWidget& window = m_program.shownWindow();
    m_hasBegunWithoutWindow = !window.isVisible();
    m_closing = std::make_unique<ClosingWindow>(window, [this] { sayThatClosingMinimizes(); });
    setShowMenuBarItem(showMenuBarItem());
    m_trayChanges = m_platform.systemTray.observe([this] { trayChanged(); });
    m_settings = m_platform.notifications.observe(kUserDefaultsDidChangeNotification,
                                                  [this](const Notification&) { settingsChanged(); });
    trayChanged();
}

bool AppPresence::showMenuBarItem() const {
    return m_platform.defaults.boolForKey(kTKPrefShowMenuItem);
}

std::int64_t AppPresence::appType() const {
    return m_platform.defaults.integerForKey(kTKPrefAppType);
}

void AppPresence::setShowDockIcon(bool isShown, bool fromStartup) {
    m_appType = isShown ? 1 : 0;
    transform();
    // Being listed again needs no hiding of the window; it only has to come to the front.
    const bool isToCome = isShown && !fromStartup && m_window.isVisible();
    m_program.setWindowStateShown((isToCome || m_hasFinishedLaunching) && !m_isFollowingSettings);
    m_platform.defaults.setObject(kTKPrefAppType, m_appType);
    reloadAppType();
}

void AppPresence::setShowMenuBarItem(bool isShown) {
    m_showsMenuBarItem = isShown;
    updateStatusItem();
    m_program.setWindowStateShown(false);
    m_platform.defaults.setObject(kTKPrefShowMenuItem, isShown);
    reloadAppType();
}

void AppPresence::reloadAppType() {
    if (!showMenuBarItem() && !showDockIcon())
        setShowDockIcon(true, false);
    m_program.reloadAppType();
}

void AppPresence::toggleDockIcon() {
    const bool isTheOnlyOne = showDockIcon() && !showMenuBarItem();
    setShowDockIcon(isTheOnlyOne || !showDockIcon(), false);
}

void AppPresence::toggleMenuItem() {
    setShowMenuBarItem(!showDockIcon() || !showMenuBarItem());
}

void AppPresence::updateMenuIconState() {
    const bool isRunning = m_program.isRunning();
    m_menu.showRunning(isRunning);
    const bool hasObstacle = isRunning && !m_obstacle.isEmpty();
    m_menu.showObstacle(hasObstacle);
    if (!m_statusBarItem)
        return;
    m_statusBarItem->setImages(isRunning ? QStringLiteral("MenuBar-Active") : QStringLiteral("MenuBar-Idle"),
                               QStringLiteral("MenuBar-Pressed"));
    const QString state = isRunning ? localized("Ticklog is counting") : localized("Ticklog is paused");
    m_statusBarItem->setTip(!m_trouble.isEmpty() ? m_trouble
                            : hasObstacle        ? m_obstacle
                            : m_today.isEmpty()  ? state
                                                 : state + QStringLiteral(" · ") + m_today);
}

void AppPresence::showToday(const QString& text) {
    m_menu.showToday(text);
    if (std::exchange(m_today, text) != text)
        updateMenuIconState();
}

void AppPresence::showObstacle(const QString& text) {
    if (m_obstacle == text)
        return;
    m_obstacle = text;
    updateMenuIconState();
}

void AppPresence::showTrouble(const QString& text) {
    if (m_trouble == text)
        return;
    m_trouble = text;
    m_menu.showTrouble(text);
    updateMenuIconState();
}

void AppPresence::transform() {
    if (isInTaskBar()) {
        m_listing.reset();
        fillMainMenu();
    } else {
        if (!m_listing)
            m_listing = std::make_unique<Listing>(m_platform.taskBar);
        emptyMainMenu();
    }
}

void AppPresence::emptyMainMenu() {
    QMenuBar& menuBar = *m_window.menuBar();
    if (m_rootItemArray.isEmpty())
        m_rootItemArray = menuBar.actions();
    for (QAction* item : menuBar.actions())
        menuBar.removeAction(item);
    m_window.setMenuBarShown(false);
}

void AppPresence::fillMainMenu() {
    QMenuBar& menuBar = *m_window.menuBar();
    for (QAction* item : m_rootItemArray)
        menuBar.addAction(item);
    m_window.setMenuBarShown(true);
}

void AppPresence::settingsChanged() {
    // The user who changed the settings is looking at another window, usually the preferences.
    const QScopedValueRollback following(m_isFollowingSettings, true);
    if (showMenuBarItem() != m_showsMenuBarItem)
        setShowMenuBarItem(showMenuBarItem());
    if (showDockIcon() != (m_appType == 1))
        setShowDockIcon(showDockIcon(), false);
}

void AppPresence::trayChanged() {
    m_menu.setForm(m_platform.systemTray.offer() == SystemTray::Offer::Exported ? MenuForm::Exported
                                                                                : MenuForm::Drawn);
    updateStatusItem();
    m_program.reloadAppType();
}

void AppPresence::updateStatusItem() {
    const bool isMissing = m_showsMenuBarItem && isTrayMissing();
    // The menu leaves the window before the tray icon that shows it appears, and the other way round.
    offerMenuInWindow(false);
    if (std::exchange(m_isInTaskBarForLackOfTray, isMissing) != isMissing)
        transform();
    offerMenuInWindow(isMissing);
    const SystemTray::Offer offer = m_platform.systemTray.offer();
    const bool isOffered = offer == SystemTray::Offer::Embedded || offer == SystemTray::Offer::Exported;
    // The icon stays even if the tray has gone: the tray may come back.
    if (!m_showsMenuBarItem) {
        m_statusBarItem.reset();
    } else if (isOffered && !m_statusBarItem) {
        // The menu is filled first, because desktops that draw it themselves treat an empty menu as no menu.
        m_menu.updateMainMenu();
        m_statusBarItem = std::make_unique<StatusItem>(m_menu.mainMenu(), m_program.showTimeWindow);
        updateMenuIconState();
    }
    if (m_closing)
        m_closing->setWayBack(isOffered && m_statusBarItem                                ? WayBack::Icon
                              : m_showsMenuBarItem && offer == SystemTray::Offer::Unknown ? WayBack::Unknown
                                                                                          : WayBack::None);
    if (isMissing)
        sayThatTrayIsMissing();
}

void AppPresence::offerMenuInWindow(bool isOffered) {
    QMenuBar& menuBar = *m_window.menuBar();
    if (isOffered)
        menuBar.addMenu(&m_menu.mainMenu());
    else
        menuBar.removeAction(m_menu.mainMenu().menuAction());
}

void AppPresence::sayThatTrayIsMissing() {
    if (std::exchange(m_hasSaidThatTrayIsMissing, true))
        return;
    m_platform.log.log(QStringLiteral("The desktop has no tray: Ticklog stays in the task bar."));
    // Not needed if Ticklog is in the task bar anyway; and at login the tray may only be late.
    if (m_appType != 1 && !m_hasBegunWithoutWindow)
        m_alerts.showNotice(localized("There is no system tray."),
                            localized("Ticklog therefore stays in the task bar, and its menu is in the main "
                                      "window. It moves to the tray as soon as there is one."));
}

void AppPresence::sayThatClosingMinimizes() {
    if (m_platform.defaults.boolForKey(kTKSaidThatClosingMinimizes))
        return;
    m_platform.defaults.setObject(kTKSaidThatClosingMinimizes, true);
    m_alerts.showNotice(localized("Ticklog keeps running in the task bar."),
                        localized("There is no tray icon that could bring a closed window back, so closing "
                                  "the window minimizes it and Ticklog keeps running. “Quit” ends Ticklog."));
}
