// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiFrontDesktop.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/wayland/WaylandConnection.h"

// A Wayland desktop that tells nobody of its windows, as far as programs tell assistive programs of theirs. What is in
// front is not known while the accessibility bus cannot be reached. Main thread only.
class AssistedDesktop : public TellingDesktop {
public:
    // `compositor` is asked for signs of life. The others outlive this.
    AssistedDesktop(std::unique_ptr<WaylandConnection> compositor, Bus& sessionBus, RunLoop& runLoop,
                    SystemLog& log, DesktopEntries& entries);

    std::span<const WindowListEntry> onScreenWindows() const override;
    QString describe() const override;
    QString obstacle() const override;
    void askForSign() override { m_compositor->askForSign(); }

private:
    void settle();
    void tell();

    std::unique_ptr<WaylandConnection> m_compositor;
    AtspiFrontDesktop m_programs;
    bool m_wasAlive = true;
};
