// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiDesktop.h"

inline const QString kAtspiLauncher = QStringLiteral("org.a11y.Bus");
inline const QString kAtspiLauncherPath = QStringLiteral("/org/a11y/bus");

// The connection to the accessibility bus, which the session's launcher starts on request, and the programs
// on it. Reconnects when the launcher comes or restarts. Bus, loop and log must outlive it; `changed` must
// not destroy it.
class AtspiLink {
public:
    // How long after losing the bus the launcher is asked for another one.
    static constexpr std::chrono::seconds kAskingAgain{1};

    // `changed` is called as by AtspiDesktop.
    AtspiLink(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, AtspiApplication::Changed changed,
              std::chrono::milliseconds patience = AtspiApplication::kPatience);

    // Starts the launcher and its bus if they do not run. Without this, others have to start them.
    void start() { ask(); }

    // Null until the address of the bus is known.
    AtspiDesktop* desktop() const { return m_desktop.get(); }

private:
    void ask();
    void connectTo(const QString& address);

    RunLoop& m_runLoop;
    SystemLog& m_log;
    AtspiApplication::Changed m_changed;
    std::chrono::milliseconds m_patience;
    QString m_address;
    BusService m_launcher;
    Subscription m_presence;
    std::unique_ptr<Bus> m_bus;
    std::unique_ptr<AtspiDesktop> m_desktop;
    std::unique_ptr<RunLoopTimer> m_askingAgain;
    Subscription m_connection;
};
