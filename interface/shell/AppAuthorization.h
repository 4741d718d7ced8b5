// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

#include <QObject>

class Alerts;

// How the program comes to be trusted for accessibility: it asks when the timer is to start without, has the privileged
// helper grant it, starts itself anew, and says what to do when that fails. Belongs to the application delegate.
// The helper's answers are heard on the main thread.
class AppAuthorization {
public:
    // What the rest of the program does for it.
    struct Actions {
        // Brings the program to the front.
        std::function<void()> activate;
        // Opens the place where the user grants trust.
        std::function<void()> openUniversalAccessPreferences;
    };

    AppAuthorization(Platform& platform, Alerts& alerts, Actions actions);
    AppAuthorization(const AppAuthorization&) = delete;
    AppAuthorization& operator=(const AppAuthorization&) = delete;

    // The timer was to start and was refused: has the desktop ask for trust, or asks the user.
    void checkAccessibilityTrust();

    // Nothing while an attempt is under way: a person may be looking for a password.
    void makeAppTrustedAndRelaunch();

    // Installs the helper and asks it. The relaunched program will start its timer.
    void installBlessing(bool secondAttempt);
    // Asks the helper, which is installed once more if it cannot be reached the first time. Whether there was a helper to
    // send to.
    bool retrust(bool secondAttempt);

    // The helper has granted trust.
    void trustedReply() { relaunchApp(); }

    // Starts the program anew and ends this one at once, without saving the timers; what the settings say is on the disk
    // before. Goes on, and logs it, when there is nothing to start.
    void relaunchApp();
    // Tells the user what to do. `error` is absent when nothing more is known.
    void authFailError(const std::optional<Failure>& error);

private:
    void blessed(bool isInstalled, bool secondAttempt, const ServiceAuthorization& authorization);

    Platform& m_platform;
    Alerts& m_alerts;
    Actions m_actions;
    std::unique_ptr<TKAuthXPC> m_helper;
    bool m_isUnderWay = false;
    // Goes before the rest: no answer comes after it.
    QObject m_receiver;
};
