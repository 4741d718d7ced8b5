// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/ClosingWindow.h"
#include "interface/shell/StatusMenu.h"
#include "platform/Platform.h"

#include <QObject>

class Alerts;
class MainWindow;
class StatusItem;

// Where the program is found on the desktop: in the task bar with the main menu, in the tray with the status menu, or in
// both, as the settings say; never nowhere. Where the desktop has no tray, the task bar stays although the settings say
// otherwise, and the status menu is found in the main menu. A closed window can always be had back: where no icon in the tray
// leads to it, it is minimised instead. Main thread only.
class AppPresence {
public:
    // What it asks of the program.
    struct Program {
        // Brings the main window to the front; false does nothing.
        std::function<void(bool isShown)> setWindowStateShown;
        // The main window's control shows what there is now.
        std::function<void()> reloadAppType;
        std::function<bool()> isRunning;
        std::function<void()> showTimeWindow;
        // What people see of the program; asked for once, when it begins.
        std::function<QWidget&()> shownWindow;
    };

    // Everything outlives it.
    AppPresence(MainWindow& window, StatusMenu& menu, Platform& platform, Alerts& alerts, Program program);
    AppPresence(const AppPresence&) = delete;
    AppPresence& operator=(const AppPresence&) = delete;
    ~AppPresence();

    // Takes the tray icon in as the settings have it, and follows the settings and the tray from now on. A window that is
    // not shown by then counts as closed.
    void begin();
    // From now on the window comes to the front when the task bar is entered or left, unless the settings were changed
    // elsewhere.
    void setFinishedLaunching() { m_hasFinishedLaunching = true; }

    void setShowDockIcon(bool isShown, bool fromStartup);
    void setShowMenuBarItem(bool isShown);
    // What the settings say.
    bool showDockIcon() const { return appType() == 1; }
    bool showMenuBarItem() const;
    std::int64_t appType() const;
    // Takes care that one of the two is there, and has the control show them.
    void reloadAppType();

    // The other way round, unless nothing else would be left.
    void toggleDockIcon();
    void toggleMenuItem();

    void updateMenuIconState();
    // Has the tray say why windows are not counted while the timer runs; nothing for an empty text.
    void showObstacle(const QString& text);
    // Has the tray say what troubles the account, a line each, whether the timer runs or not; nothing for an empty text.
    void showTrouble(const QString& text);

    // Whether the desktop is known to have no tray.
    bool isTrayMissing() const { return m_platform.systemTray.offer() == SystemTray::Offer::None; }
    // Whether the window is in the task bar and the main menu in the window, whatever the settings say.
    bool isInTaskBar() const { return m_appType == 1 || m_isInTaskBarForLackOfTray; }
    // The icon; null while there is none.
    const StatusItem* statusBarItem() const { return m_statusBarItem.get(); }
    // What the main menu consists of when it is there.
    const QList<QAction*>& rootItemArray() const { return m_rootItemArray; }

private:
    class Listing;

    void transform();
    void emptyMainMenu();
    void fillMainMenu();
    void settingsChanged();
    void trayChanged();
    void updateStatusItem();
    void offerMenuInWindow(bool isOffered);
    void sayThatTrayIsMissing();
    void sayThatClosingMinimizes();

    MainWindow& m_window;
    StatusMenu& m_menu;
    Platform& m_platform;
    Alerts& m_alerts;
    Program m_program;
    QString m_obstacle;
    QString m_trouble;
    std::int64_t m_appType = 1;
    bool m_showsMenuBarItem = false;
    bool m_hasFinishedLaunching = false;
    bool m_isInTaskBarForLackOfTray = false;
    bool m_hasSaidThatTrayIsMissing = false;
    bool m_hasBegunWithoutWindow = false;
    bool m_isFollowingSettings = false;
    QList<QAction*> m_rootItemArray;
    std::unique_ptr<StatusItem> m_statusBarItem;
    // Null until it begins.
    std::unique_ptr<ClosingWindow> m_closing;
    // Keeps windows out of the task bar; null while they are in it.
    std::unique_ptr<Listing> m_listing;
    Subscription m_settings;
};
