// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiFrontDesktop.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/gnome/GnomeShellDesktop.h"

// GNOME: tells its windows as our shell extension reports them. While the extension is silent, uses what
// programs tell assistive programs about theirs. Main thread only.
class StandInDesktop : public TellingDesktop {
public:
    // How long the extension has to report before the programs are asked.
    static constexpr std::chrono::seconds kPatience{1};

    // All arguments outlive this object.
    StandInDesktop(GnomeShellDesktop& shell, AtspiFrontDesktop& programs, RunLoop& runLoop,
                   DesktopEntries& entries);

    std::span<const WindowListEntry> onScreenWindows() const override;
    QString describe() const override;
    QString obstacle() const override;
    void askForSign() override { m_shell.askForSign(); }

private:
    bool isStandingIn() const { return !m_shell.isTelling() && m_programs.isTelling(); }
    // Called when the extension may have come or gone.
    void changeOver();
    void tell();

    GnomeShellDesktop& m_shell;
    AtspiFrontDesktop& m_programs;
    RunLoop& m_runLoop;
    // Absent while the extension reports.
    std::unique_ptr<RunLoopTimer> m_patience;
    Subscription m_switches;
    Subscription m_signs;
    Subscription m_programsSwitches;
};
