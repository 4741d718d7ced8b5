// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiFrontDesktop.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/wayland/WaylandConnection.h"

// A Wayland desktop that tells nobody about its windows: uses what programs tell assistive programs about
// theirs. While the accessibility bus cannot be reached, nothing is in front. Main thread only.
class AssistedDesktop : public TellingDesktop {
public:
    // `compositor` is asked for signs of life. `remedy` is a text that says why it does not tell this process
    // and what to do about it; empty if it tells nobody. The other arguments outlive this object.
    AssistedDesktop(std::unique_ptr<WaylandConnection> compositor, QString remedy, Bus& sessionBus,
                    RunLoop& runLoop, SystemLog& log, DesktopEntries& entries);

    std::span<const WindowListEntry> onScreenWindows() const override;
    QString describe() const override;
    QString obstacle() const override;
    void askForSign() override { m_compositor->askForSign(); }

private:
    void settle();
    void tell();

    std::unique_ptr<WaylandConnection> m_compositor;
    const QString m_remedy;
    AtspiFrontDesktop m_programs;
    bool m_wasAlive = true;
    Subscription m_news;
    Subscription m_switches;
};
