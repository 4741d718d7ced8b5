// SPDX-License-Identifier: MIT
#pragma once

#include "interface/preferences/GeneralTab.h"
#include "platform/foundation/files/UserDefaults.h"

#include <QObject>
#include <QPointer>

class TKController;
class WelcomePage;

// Shows the page of the first start in place of the timers, of which there are none yet. It goes when the timer
// starts or the user has read it, and never comes again.
class FirstStart {
public:
    // Does nothing if the page was shown before or the timer runs. Everything outlives it.
    FirstStart(TKController& controller, UserDefaults& defaults, const LoginItem& loginItem,
               const std::function<void()>& showTitles);
    FirstStart(const FirstStart&) = delete;
    FirstStart& operator=(const FirstStart&) = delete;
    ~FirstStart();

private:
    void end();

    TKController& m_controller;
    // Null before and after; belongs to the window.
    QPointer<WelcomePage> m_page;
    QObject m_receiver;
};
