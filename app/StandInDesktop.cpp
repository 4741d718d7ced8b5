// SPDX-License-Identifier: MIT
#include "app/StandInDesktop.h"

#include "platform/foundation/text/LocalizedStrings.h"

StandInDesktop::StandInDesktop(GnomeShellDesktop& shell, AtspiFrontDesktop& programs, RunLoop& runLoop,
                               DesktopEntries& entries)
    : TellingDesktop(entries)
    , m_shell(shell)
    , m_programs(programs)
    , m_runLoop(runLoop) {
    m_switches = m_shell.observeSwitches([this] { changeOver(); });
    // The extension may come or go while the same window is in front.
    m_signs = m_shell.observeSigns([this] {
        changeOver();
        hear();
    });
    m_programsSwitches = m_programs.observeSwitches([this] { tell(); });
    changeOver();
}

std::span<const WindowListEntry> StandInDesktop::onScreenWindows() const {
    return isStandingIn() ? m_programs.onScreenWindows() : m_shell.onScreenWindows();
}

QString StandInDesktop::describe() const {
    return isStandingIn() ? m_shell.describe() + QStringLiteral("; ") + m_programs.describe()
                          : m_shell.describe();
}

QString StandInDesktop::obstacle() const {
    if (!isStandingIn())
        return m_shell.obstacle();
    return m_shell.reasonForSilence() + u' ' +
           localized("Until it runs, Ticklog sees only programs that tell assistive programs about their "
                     "windows; all other time counts as “Desktop”.");
}

void StandInDesktop::changeOver() {
    if (m_shell.isTelling()) {
        m_patience.reset();
        m_programs.end();
    } else if (!m_patience) {
        m_patience = m_runLoop.scheduleOnce(kPatience, [this] { m_programs.begin(); });
    }
    tell();
}

void StandInDesktop::tell() {
    const auto& front = isStandingIn() ? m_programs.activeApplication() : m_shell.activeApplication();
    show({}, front ? front : frontAfterwards());
}
