// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

#include <QObject>

#include <memory>

class AccountTrouble;
class AppPresence;
class MainWindow;

// Shows, in the window and the tray, why Ticklog cannot tell which window is in front, and what troubles the
// account.
class ShownObstacle {
public:
    // All outlive it.
    ShownObstacle(MainWindow& window, AppPresence& presence, AccountTrouble& trouble, Platform& platform);

    // Shows what there is now. While there is an obstacle and the window can be seen, looks again every
    // second, because a paused timer has no tick that would.
    void show();

private:
    MainWindow& m_window;
    AppPresence& m_presence;
    AccountTrouble& m_trouble;
    Platform& m_platform;
    // Null while there is no obstacle.
    std::unique_ptr<RunLoopTimer> m_nextLook;
    Subscription m_troubles;
    // Receives the bar's signals.
    QObject m_receiver;
};
