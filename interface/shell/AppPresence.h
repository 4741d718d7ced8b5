// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/ClosingWindow.h"
#include "interface/shell/StatusMenu.h"
#include "platform/Platform.h"

#include <QObject>

class Alerts;
class MainWindow;
class StatusItem;

// Where the program appears on the desktop, as the settings say: in the task bar with the main menu, in the
// tray with the status menu, or in both, but never nowhere. On a desktop without a tray the task bar stays
// whatever the settings say, and the status menu is part of the main menu. A closed window can always be
// reached again: where no tray icon leads to it, it is minimised instead. Main thread only.
class AppPresence {
public:
    // What it asks or calls in the program.
    struct Program {
        // Brings the main window to the front; false does nothing.
        std::function<void(bool isShown)> setWindowStateShown;
        // Updates the control in the main window.
        std::function<void()> reloadAppType;
        std::function<bool()> isRunning;
        std::function<void()> showTimeWindow;
        // The window that the user sees; asked once, when begin() is called.
        std::function<QWidget&()> shownWindow;
    };

    // Everything outlives it.
    AppPresence(MainWindow& window, StatusMenu& menu, Platform& platform, Alerts& alerts, Program program);
    AppPresence(const AppPresence&) = delete;
    AppPresence& operator=(const AppPresence&) = delete;
    ~AppPresence();

    // Shows the tray icon if the settings say so, and follows the settings and the tray from now on. A window
    // that is not shown by then counts as closed.
    void begin();
    // From now on the window comes to the front when the task bar is entered or left, unless the settings
    // were changed by something else.
    void setFinishedLaunching() { m_hasFinishedLaunching = true; }

    void setShowDockIcon(bool isShown, bool fromStartup);
    void setShowMenuBarItem(bool isShown);
    // What the settings say.
    bool showDockIcon() const { return appType() == 1; }
    bool showMenuBarItem() const;
    std::int64_t appType() const;
    // Makes sure that one of the two is shown, and updates the control.
    void reloadAppType();

    // Switch one of them, unless that would leave neither.
    void toggleDockIcon();
    void toggleMenuItem();

    void updateMenuIconState();
    // How long was worked today, in the tray menu and its tip; empty for none.
    void showToday(const QString& text);
    // Shows in the tray why windows are not counted while the timer runs; an empty text shows nothing.
    void showObstacle(const QString& text);
    // Shows in the tray what troubles the account, one line each, whether the timer runs or not; an empty
    // text shows nothing.
    void showTrouble(const QString& text);

    // Whether the desktop is known to have no tray.
    bool isTrayMissing() const { return m_platform.systemTray.offer() == SystemTray::Offer::None; }
    // Whether the window is in the task bar and has the main menu, whatever the settings say.
    bool isInTaskBar() const { return m_appType == 1 || m_isInTaskBarForLackOfTray; }
    // The tray icon; null while there is none.
    const StatusItem* statusBarItem() const { return m_statusBarItem.get(); }
    // The menus of the main menu, when it is shown.
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
    QString m_today;
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
    // Null until begin() is called.
    std::unique_ptr<ClosingWindow> m_closing;
    // Keeps windows out of the task bar; null while they are in it.
    std::unique_ptr<Listing> m_listing;
    Subscription m_settings;
    Subscription m_trayChanges;
};
