// SPDX-License-Identifier: MIT
#pragma once

#include "interface/preferences/TKSetupController.h"

// Opens the preferences by the main window's commands. They are made at the first of them: most days nobody asks.
class Preferences {
public:
    // As for TKSetupController. `didMake` is called once, with the window.
    Preferences(TKController& tkController, Platform& platform, Alerts& alerts,
                std::function<void(PrefWindow&)> didMake, History* history = nullptr);

    // Null until the window has been asked for.
    TKSetupController* setup() { return m_setup ? &*m_setup : nullptr; }

private:
    TKSetupController& made();
    LoginItem loginItem();

    TKController& m_tkController;
    Platform& m_platform;
    Alerts& m_alerts;
    std::function<void(PrefWindow&)> m_didMake;
    History* m_history;
    std::optional<TKSetupController> m_setup;
    // Ends the connections.
    QObject m_receiver;
};
