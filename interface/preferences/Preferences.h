// SPDX-License-Identifier: MIT
#pragma once

#include "interface/preferences/TKSetupController.h"

// Opens the preferences for the main window's commands. Made at the first command only, because on most days
// nobody opens them.
class Preferences {
public:
    // As for TKSetupController. `didMake` is called once, when the window has been made.
    Preferences(TKController& tkController, Platform& platform, Alerts& alerts,
                std::function<void(PrefWindow&)> didMake, History* history = nullptr);

    // Opens the rules for titles.
    void showTitles() { made().showTitles(); }
    // Whether Ticklog starts at login; what the desktop refuses is reported. It must not outlive this object.
    LoginItem loginItem();
    // Null before the window is first opened.
    TKSetupController* setup() { return m_setup ? &*m_setup : nullptr; }

private:
    TKSetupController& made();

    TKController& m_tkController;
    Platform& m_platform;
    Alerts& m_alerts;
    std::function<void(PrefWindow&)> m_didMake;
    History* m_history;
    std::optional<TKSetupController> m_setup;
    // Receives all connections; its end disconnects them.
    QObject m_receiver;
};
