// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

#include <QObject>

class Alerts;

// Gets the program trusted for accessibility. When a start of the timer is refused for lack of trust, it asks
// the user, has the privileged helper grant trust, restarts the program, and says what to do if that fails.
// Belongs to the application delegate. The helper's answers arrive on the main thread.
class AppAuthorization {
public:
    // What it calls in the rest of the program.
    struct Actions {
        // Brings the program to the front.
        std::function<void()> activate;
        // Opens the desktop's settings where the user grants trust.
        std::function<void()> openUniversalAccessPreferences;
    };

    AppAuthorization(Platform& platform, Alerts& alerts, Actions actions);
    AppAuthorization(const AppAuthorization&) = delete;
    AppAuthorization& operator=(const AppAuthorization&) = delete;

    // The timer could not start for lack of trust: lets the desktop ask for it, or asks the user.
    void checkAccessibilityTrust();

    // Does nothing while an attempt is under way: the user may be looking for a password.
    void makeAppTrustedAndRelaunch();

    // Installs the helper and asks it for trust. The restarted program will start its timer.
    void installBlessing(bool secondAttempt);
    // Asks the helper for trust. If the helper cannot be reached the first time, installs it once more.
    // Answers whether there was a helper to ask.
    bool retrust(bool secondAttempt);

    // The helper has granted trust.
    void trustedReply() { relaunchApp(); }

    // Starts the program again and ends this one at once, without saving the timers; writes the settings
    // first. If there is nothing to start, logs that and goes on.
    void relaunchApp();
    // Tells the user what to do. `error` is absent if nothing more is known.
    void authFailError(const std::optional<Failure>& error);

private:
    void installed(bool isInstalled, bool secondAttempt, const ServiceRight& right);

    Platform& m_platform;
    Alerts& m_alerts;
    Actions m_actions;
    std::unique_ptr<TKAuthXPC> m_helper;
    bool m_isUnderWay = false;
    // Destroyed first: no answer arrives after that.
    QObject m_receiver;
};
