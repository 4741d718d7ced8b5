// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Narrowing.h"
#include "Classes/store/TimerTree.h"
#include "platform/foundation/observing/KeyValueObserving.h"

#include <mutex>

// The set of applications. For observers of the tracker.
inline constexpr ObservedKey kTimeSetKey{"timeSet"};

// The timers while they are counted on: the tree, the two timers that get the time now, and the rows that a
// search or a limit leaves. The tracker owns it and credits time to it; Freezing and PastRuling change it.
// The tracker announces changes of the set. Main thread only; the lock guards against re-entry.
class CountedTimers {
public:
    using AppSet = TimerTree::AppSet;

    CountedTimers(TimeStoreServices& services, Observable& tracker)
        : m_services(services)
        , m_tracker(tracker) {}

    TimerTree& tree() { return m_tree; }
    const TimerTree& tree() const { return m_tree; }
    Narrowing& narrowing() { return m_narrowing; }
    const Narrowing& narrowing() const { return m_narrowing; }
    TimeStoreServices& services() const { return m_services; }
    std::recursive_mutex& lock() const { return m_lock; }

    // A change of the set begins, and ends with the answer's life.
    ChangeAnnouncement changeOfSet() { return {m_tracker, kTimeSetKey}; }

    // The timers that get the time; null when there is none.
    std::shared_ptr<TimeStoreApp> app() const { return m_app.lock(); }
    std::shared_ptr<TimeStoreWindow> window() const { return m_window.lock(); }
    // The window, if it belongs to the application: one without windows leaves the previous one's window
    // current.
    std::shared_ptr<TimeStoreWindow> windowOfApp() const;
    // Finds or makes the application to credit. Without a name the current one stays.
    void setCurrentApp(const std::optional<QString>& name);
    void setWindow(const std::shared_ptr<TimeStoreWindow>& window);
    void forgetApp() { m_app.reset(); }
    void forgetWindow() { m_window.reset(); }
    // The two, for whoever gives time to others and then goes on.
    struct Counted {
        std::weak_ptr<TimeStoreApp> app;
        std::weak_ptr<TimeStoreWindow> window;
    };
    Counted counted() const { return {m_app, m_window}; }
    void setCounted(const Counted& counted) {
        m_app = counted.app;
        setWindow(counted.window.lock());
    }
    // If `gone` is one of the two, `heir` is from now on.
    void passOn(TimeStoreNode& gone, TimeStoreNode& heir);

    std::shared_ptr<TimeStoreApp> add(std::shared_ptr<TimeStoreApp> app);
    // For work. Only the tracker calls it, for a stretch.
    void addTime(TimeStoreNode& node, Seconds seconds);
    // For everything else: time that an absence takes, or that comes from other timers.
    void correctTime(TimeStoreNode& node, Seconds seconds);

    // Finds the rows anew that the search and the limit leave.
    void reloadSearchFiltering();
    // Takes out rows of applications that have left the tree.
    void dropRows(const AppSet& gone);

private:
    void noteGrowth(const TimeStoreNode& node, Seconds seconds);

    TimeStoreServices& m_services;
    Observable& m_tracker;
    mutable std::recursive_mutex m_lock;
    TimerTree m_tree;
    Narrowing m_narrowing;
    // Not owned: observers may take any node out of the tree, even the one being credited.
    std::weak_ptr<TimeStoreApp> m_app;
    std::weak_ptr<TimeStoreWindow> m_window;
};
