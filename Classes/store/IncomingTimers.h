// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"

#include <functional>

// Timers on their way from a file to the tree. They are made beside it, some at a time, so that whoever brings half a
// million of them can do other things in between; the tree and the projects hear of them when it takes them. The registry
// learns their identities as they are made; who made them is told if they are given up, so that it can learn the tree's anew.
// Main thread only.
class IncomingTimers {
public:
    using AppSet = std::vector<std::shared_ptr<TimeStoreApp>>;

    using GivenUp = std::function<void()>;

    // Of what a database file holds.
    IncomingTimers(TimeStoreServices& services, PropertyListValue entries, GivenUp givenUp);
    // Of a list of entries alone, as in TimeTracker::arrayRepresentation(). The list must outlive this.
    IncomingTimers(TimeStoreServices& services, const PropertyListArray& apps, GivenUp givenUp);
    IncomingTimers(const IncomingTimers&) = delete;
    IncomingTimers& operator=(const IncomingTimers&) = delete;
    ~IncomingTimers();

    // All that the file says has its place in an account, as far as it was looked at.
    bool isAccount() const { return m_isAccount; }
    // So many timers there are to be made, counting those that are left out.
    std::size_t count() const { return m_count; }
    const PropertyListValue& entries() const { return m_entries; }
    // When they were last cleared; absent where the file does not say, as the oldest do not.
    std::optional<Date> lastResetDate() const;

    // Makes up to `most` more of them; answers which part is done, from 0 to 1.
    double makeMore(std::size_t most);
    void makeAll() { makeMore(SIZE_MAX); }
    // The applications, with their windows, that are made: all, once makeMore() has answered 1. Once.
    AppSet take();
    // How many entries were left out so far for being no timers.
    int damaged() const { return m_damaged; }
    // What came together, or was told apart, on the way.
    const Successions& successions() const { return m_successions; }

private:
    bool isDone() const;
    void makeOne();
    void makeOldest();
    void beginApplication();
    void endApplication();

    TimeStoreServices& m_services;
    const PropertyListValue m_entries;
    const PropertyListArray* m_list = nullptr;
    // The oldest files have no list: they are one table of names and seconds.
    const PropertyListDictionary* m_table = nullptr;
    bool m_isAccount = true;
    std::size_t m_count = 0;
    std::size_t m_made = 0;
    // The next entry, and the next window of the application that is being made.
    std::size_t m_next = 0;
    std::size_t m_nextWindow = 0;
    const PropertyListArray* m_windows = nullptr;
    std::shared_ptr<TimeStoreApp> m_app;
    AppSet m_apps;
    std::unordered_set<Identity> m_seen;
    Successions m_successions;
    int m_damaged = 0;
    const GivenUp m_givenUp;
    bool m_isTaken = false;
};
