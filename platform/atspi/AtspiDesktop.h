// SPDX-License-Identifier: MIT
#pragma once

#include "platform/atspi/AtspiApplication.h"
#include "platform/bus/BusService.h"

#include <unordered_map>

// The programs on the accessibility bus, kept in memory by their events. The rest must outlive it.
class AtspiDesktop {
public:
    // A program that has just come to the bus is not in the registry yet; it is looked for after each of
    // these.
    static constexpr std::chrono::milliseconds kFirstLook{300};
    static constexpr std::chrono::seconds kSecondLook{2};

    // `changed` is called after the main window of a program, its title, or whether it is active has changed, and with
    // process 0 after the registry has come or gone.
    AtspiDesktop(Bus& accessibilityBus, RunLoop& runLoop, AtspiApplication::Changed changed);

    // Whether there is somebody on the bus who knows the programs.
    bool isServed() const { return m_registry.isServed(); }

    // Any program of which this is so; null when there is none.
    AtspiApplication* find(const std::function<bool(const AtspiApplication&)>& isSo) const;
    // Null for a process that shows nothing.
    AtspiApplication* ofProcess(std::int64_t processIdentifier) const;
    // By the unique name of its connection.
    AtspiApplication* named(const QString& name) const;

private:
    void follow();
    // Tells programs, those that have missed it too, that somebody listens.
    void registerEvents();
    void listenToEvents();
    void look();
    // What happened before a program knew that somebody listens was not told.
    void lookAgain();
    void learn(const QDBusMessage& children);
    void nameChanged(const QDBusMessage& signal);
    // The program that sent a signal; null, and looked for, when it is not known yet.
    AtspiApplication* sender(const QDBusMessage& signal);

    Bus& m_bus;
    RunLoop& m_runLoop;
    AtspiApplication::Changed m_changed;
    BusService m_registry;
    std::unordered_map<QString, std::unique_ptr<AtspiApplication>> m_applications;
    std::unique_ptr<RunLoopTimer> m_firstLook;
    std::unique_ptr<RunLoopTimer> m_secondLook;
    std::vector<std::unique_ptr<BusSignal>> m_signals;
    Subscription m_presence;
};
