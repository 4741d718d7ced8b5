// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/AppAuthorization.h"
#include "interface/shell/AppPresence.h"

#include <QObject>

class Alerts;
class TKController;

// The program's life on the desktop: what happens when it has started, is asked to quit, loses the focus,
// when the session changes and when the power goes. Belongs to the controller, which it calls.
class TKApplicationDelegate {
public:
    // How often the timers are written at least.
    static constexpr std::chrono::seconds kSaveInterval{900};

    TKApplicationDelegate(TKController& controller, Platform& platform, Alerts& alerts);
    TKApplicationDelegate(const TKApplicationDelegate&) = delete;
    TKApplicationDelegate& operator=(const TKApplicationDelegate&) = delete;
    ~TKApplicationDelegate();

    // Last in the order of launch: from now on session, power and focus are heard of, and the timers are
    // saved.
    void applicationDidFinishLaunching();

    // Whether the program may quit; asks while the timer runs.
    bool applicationShouldTerminate();
    // Quits if it may.
    void terminate();
    // The program was started a second time. False in every case: nothing else is to be done.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    void activateIgnoringOtherApps(bool isWanted);
    void showTimeWindow();
    void toggleStartStop();
    void showAboutBox();

    // The user's session went to the background, or came to the front.
    void switchHandler(bool didResignActive);
    // The machine goes down or the session ends: nobody is asked.
    void willPowerOffHandler();

    // Where the program is found, and the menu of its tray icon.
    AppPresence& presence() { return m_presence; }
    StatusMenu& statusMenu() { return m_statusMenu; }

    // At every tick; and when the timer starts or stops.
    void updateMenus() { m_statusMenu.updateMenus(); }

    void updateMenuIconState() { m_presence.updateMenuIconState(); }

    // How the program comes to be trusted, and starts itself anew.
    AppAuthorization& authorization() { return m_authorization; }

private:
    TKController& m_controller;
    Platform& m_platform;
    Alerts& m_alerts;
    AppAuthorization m_authorization;
    StatusMenu m_statusMenu;
    AppPresence m_presence;
    std::unique_ptr<RunLoopTimer> m_saveTimer;
    // What Qt's signals are received by.
    QObject m_receiver;
};
