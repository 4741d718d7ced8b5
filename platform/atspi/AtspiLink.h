// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiDesktop.h"

inline const QString kAtspiLauncher = QStringLiteral("org.a11y.Bus");
inline const QString kAtspiLauncherPath = QStringLiteral("/org/a11y/bus");

// The way to the accessibility bus, which the session's launcher starts for whoever asks, and the programs on it. Follows
// a launcher that comes, or comes anew. Bus, loop and log must outlive it; `changed` may not destroy it.
class AtspiLink {
public:
    // How much later than the loss of the bus the launcher is asked for another.
    static constexpr std::chrono::seconds kAskingAgain{1};

    // `changed` is called as AtspiDesktop's.
    AtspiLink(Bus& sessionBus, RunLoop& runLoop, SystemLog& log, AtspiApplication::Changed changed);

    // Starts the launcher and its bus where they do not run, which is otherwise left to others.
    void start() { ask(); }

    // Null until the bus is known.
    AtspiDesktop* desktop() const { return m_desktop.get(); }

private:
    void ask();
    void connectTo(const QString& address);

    RunLoop& m_runLoop;
    SystemLog& m_log;
    AtspiApplication::Changed m_changed;
    QString m_address;
    BusService m_launcher;
    Subscription m_presence;
    std::unique_ptr<Bus> m_bus;
    std::unique_ptr<AtspiDesktop> m_desktop;
    std::unique_ptr<RunLoopTimer> m_askingAgain;
    Subscription m_connection;
};
