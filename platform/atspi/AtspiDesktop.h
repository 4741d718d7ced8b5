// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiApplication.h"
#include "platform/bus/BusService.h"

#include <unordered_map>

// The programs on the accessibility bus, kept up to date by their events. All arguments must outlive it.
class AtspiDesktop {
public:
    // A program that has just joined the bus is not in the registry yet: the registry is read again after
    // each of these times.
    static constexpr std::chrono::milliseconds kFirstLook{300};
    static constexpr std::chrono::seconds kSecondLook{2};

    // `changed` is called when a program's main window, its title, or its being active has changed; and with
    // process 0 when the registry has come or gone.
    AtspiDesktop(Bus& accessibilityBus, RunLoop& runLoop, AtspiApplication::Changed changed,
                 std::chrono::milliseconds patience = AtspiApplication::kPatience);

    // Whether the registry, which knows the programs, is on the bus.
    bool isServed() const { return m_registry.isServed(); }

    // Some program for which `isSo` is true; null when there is none.
    AtspiApplication* find(const std::function<bool(const AtspiApplication&)>& isSo) const;
    // Null for a process that does not describe itself.
    AtspiApplication* ofProcess(std::int64_t processIdentifier) const;
    // By the unique name of its connection.
    AtspiApplication* named(const QString& name) const;

private:
    void follow();
    // Tells all programs that somebody listens, also those that missed it before.
    void registerEvents();
    void listenToEvents();
    void look();
    // Reads the programs again: they do not report what happened before they knew that somebody listens.
    void lookAgain();
    void learn(const QDBusMessage& children);
    void nameChanged(const QDBusMessage& signal);
    // The program that sent a signal. If it is not known yet: null, and it is looked for.
    AtspiApplication* sender(const QDBusMessage& signal);

    Bus& m_bus;
    RunLoop& m_runLoop;
    AtspiApplication::Changed m_changed;
    std::chrono::milliseconds m_patience;
    BusService m_registry;
    std::unordered_map<QString, std::unique_ptr<AtspiApplication>> m_applications;
    std::unique_ptr<RunLoopTimer> m_firstLook;
    std::unique_ptr<RunLoopTimer> m_secondLook;
    std::vector<std::unique_ptr<BusSignal>> m_signals;
    Subscription m_presence;
};
