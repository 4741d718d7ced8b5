// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "Classes/store/TKUUIDManager.h"

// Names say what somebody did, so the registry keeps only those that are needed: of timers, of members of
// projects, and of timers with a past in the history. These keep theirs, so that a timer that comes back
// after the timers were cleared is still the one whose past the history has. Main thread only; all arguments
// outlive it.
class NameKeeping {
public:
    // Answers the members of all projects.
    using Members = std::function<std::unordered_set<Identity>()>;

    NameKeeping(TKUUIDManager& registry, TimeTracker& tracker, History& history, Members members);
    NameKeeping(const NameKeeping&) = delete;
    NameKeeping& operator=(const NameKeeping&) = delete;

private:
    void tidy();

    TKUUIDManager& m_registry;
    TimeTracker& m_tracker;
    History& m_history;
    Members m_members;
    Subscription m_keeping;
    Subscription m_losses;
    Subscription m_clearing;
};
