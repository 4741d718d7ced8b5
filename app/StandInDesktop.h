// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiFrontDesktop.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/gnome/GnomeShellDesktop.h"

// GNOME's windows as our extension of the shell tells them, and while it does not, as far as programs tell assistive
// programs of theirs. Main thread only.
class StandInDesktop : public TellingDesktop {
public:
    // The extension has this long to tell before the others are asked.
    static constexpr std::chrono::seconds kPatience{1};

    // All outlive this, and tell nobody else.
    StandInDesktop(GnomeShellDesktop& shell, AtspiFrontDesktop& programs, RunLoop& runLoop,
                   DesktopEntries& entries);
    ~StandInDesktop() override;

    std::span<const WindowListEntry> onScreenWindows() const override;
    QString describe() const override;
    QString obstacle() const override;
    void askForSign() override { m_shell.askForSign(); }

private:
    bool isStandingIn() const { return !m_shell.isTelling() && m_programs.isTelling(); }
    // The extension has come or gone, or is as it was.
    void changeOver();
    void tell();

    GnomeShellDesktop& m_shell;
    AtspiFrontDesktop& m_programs;
    RunLoop& m_runLoop;
    // Absent while the extension tells.
    std::unique_ptr<RunLoopTimer> m_patience;
};
