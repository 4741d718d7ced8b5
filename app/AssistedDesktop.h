// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SignsOfLife.h"
#include "platform/atspi/AtspiFrontDesktop.h"
#include "platform/wayland/WaylandConnection.h"

// A Wayland desktop that tells nobody of its windows, as far as programs tell assistive programs of theirs. What is in
// front is not known while the accessibility bus cannot be reached. Main thread only.
class AssistedDesktop : public WindowList, public FrontApplication, public SignsOfLife {
public:
    // `compositor` is asked for signs of life. The others outlive this.
    AssistedDesktop(std::unique_ptr<WaylandConnection> compositor, Bus& sessionBus, RunLoop& runLoop,
                    SystemLog& log, DesktopEntries& entries);

    std::span<const WindowListEntry> onScreenWindows() const override;
    const std::optional<ApplicationRecord>& activeApplication() const override { return m_front; }
    bool installSwitchHandler(std::function<void()> handler) override;
    QString bundleName(const QString& path) const override { return m_programs.bundleName(path); }
    QString describe() const override;
    QString obstacle() const override;
    void setHeardHandler(std::function<void()> heard) override { m_heardHandler = std::move(heard); }
    void askForSign() override;

    // Called when the compositor has gone.
    void setLostHandler(std::function<void()> handler) { m_lostHandler = std::move(handler); }

private:
    void settle();
    void tell();

    std::unique_ptr<WaylandConnection> m_compositor;
    AtspiFrontDesktop m_programs;
    std::function<void()> m_handler;
    std::function<void()> m_heardHandler;
    std::function<void()> m_lostHandler;
    bool m_wasAlive = true;
    std::optional<ApplicationRecord> m_front;
};
