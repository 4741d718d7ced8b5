// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/AppAuthorization.h"
#include "interface/shell/AppPresence.h"

#include <QObject>

class Alerts;
class TKController;

// Reacts to the program's life on the desktop: start, requests to quit, loss of focus, changes of the
// session, power off. Belongs to the controller and calls it.
class TKApplicationDelegate {
public:
    // The timers are written at least this often.
    static constexpr std::chrono::seconds kSaveInterval{900};

    TKApplicationDelegate(TKController& controller, Platform& platform, Alerts& alerts);
    TKApplicationDelegate(const TKApplicationDelegate&) = delete;
    TKApplicationDelegate& operator=(const TKApplicationDelegate&) = delete;
    ~TKApplicationDelegate();

    // Called last in the launch: from now on it hears of session, power and focus, and saves the timers
    // regularly.
    void applicationDidFinishLaunching();

    // Whether the program may quit; asks the user while the timer runs.
    bool applicationShouldTerminate();
    // Quits if it may.
    void terminate();
    // For a desktop that says that the program was started a second time, and whether a window of it can be
    // seen. Nothing on Linux does: there the second start itself brings the window to the front
    // (SingleInstance). Always false: the caller has nothing else to do.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    void activateIgnoringOtherApps(bool isWanted);
    void showTimeWindow();
    void toggleStartStop();
    void showAboutBox();

    // The user's session went to the background, or came to the front.
    void switchHandler(bool wentToBackground);
    // The machine powers off or the session ends: asks the user nothing.
    void willPowerOffHandler();

    // Where the program appears on the desktop, and the menu of its tray icon.
    AppPresence& presence() { return m_presence; }
    StatusMenu& statusMenu() { return m_statusMenu; }

    // Called at every tick, and when the timer starts or stops.
    void updateMenus() { m_statusMenu.updateMenus(); }
    bool isMenuOpen() const { return m_statusMenu.displayingAppMenu(); }

    void updateMenuIconState() { m_presence.updateMenuIconState(); }

    // Gets the program trusted, and restarts it.
    AppAuthorization& authorization() { return m_authorization; }

private:
    TKController& m_controller;
    Platform& m_platform;
    Alerts& m_alerts;
    AppAuthorization m_authorization;
    StatusMenu m_statusMenu;
    AppPresence m_presence;
    std::unique_ptr<RunLoopTimer> m_saveTimer;
    Subscription m_sessionNews;
    // Receives Qt's signals.
    QObject m_receiver;
};
