// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

#include <memory>

class AccountTrouble;
class AppPresence;
class MainWindow;

// Shows, in the window and the tray, why it cannot be told which window is in front, and what troubles the account.
class ShownObstacle {
public:
    // All outlive it.
    ShownObstacle(MainWindow& window, AppPresence& presence, AccountTrouble& trouble, Platform& platform);

    // Shows what there is now. While something is in the way and the window is seen, it looks again every second: paused
    // there is no tick to do it, and what is in the way may go all the same.
    void show();

private:
    MainWindow& m_window;
    AppPresence& m_presence;
    AccountTrouble& m_trouble;
    Platform& m_platform;
    // Null while nothing is in the way.
    std::unique_ptr<RunLoopTimer> m_nextLook;
    Subscription m_troubles;
};
