// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"

#include <functional>

// Timers on their way from a file to the tree. They are made beside the tree, some at a time, so that other
// things can be done while half a million of them are made; the tree and the projects hear of them only when
// it takes them. The registry learns their identities as they are made. If they are given up, GivenUp is
// called, so that its owner can enter the tree's own identities again. Main thread only.
class IncomingTimers {
public:
    using AppSet = std::vector<std::shared_ptr<TimeStoreApp>>;

    using GivenUp = std::function<void()>;

    // From the content of a database file.
    IncomingTimers(TimeStoreServices& services, PropertyListValue entries, GivenUp givenUp);
    // From a list of entries alone, as TimeTracker::writeArrayRepresentation() writes it. The list must
    // outlive this object.
    IncomingTimers(TimeStoreServices& services, const PropertyListArray& apps, GivenUp givenUp);
    IncomingTimers(const IncomingTimers&) = delete;
    IncomingTimers& operator=(const IncomingTimers&) = delete;
    ~IncomingTimers();

    // Whether the content is an account, as far as it has been read.
    bool isAccount() const { return m_isAccount; }
    // How many timers are to be made, including those that will be left out.
    std::size_t count() const { return m_count; }
    const PropertyListValue& entries() const { return m_entries; }
    // When the timers were last cleared; absent where the file does not say so, as in the oldest form.
    std::optional<Date> lastResetDate() const;

    // Makes up to `most` more timers; answers how much is done, from 0 to 1.
    double makeMore(std::size_t most);
    void makeAll() { makeMore(SIZE_MAX); }
    // The applications made so far, with their windows; all of them once makeMore() has answered 1. Call it
    // once.
    AppSet take();
    // How many entries were left out so far because they are no timers.
    int damaged() const { return m_damaged; }
    // Which timers were joined or given separate identities on the way.
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
    // For the oldest form, which has no list but one table of names and seconds.
    const PropertyListDictionary* m_table = nullptr;
    bool m_isAccount = true;
    std::size_t m_count = 0;
    std::size_t m_made = 0;
    // The next entry to make, and the next window of the application that is being made.
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
