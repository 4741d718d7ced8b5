// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/FrozenTimer.h"
#include "Classes/store/Succession.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <memory>
#include <unordered_set>

class Clock;
class CountedTimers;
class TimeActivator;
class TimeStoreApp;
class TimeStoreWindow;

// Freezes timers, and undoes it. A frozen timer keeps its time under a dated name and a new identity, and
// counting goes on in a fresh timer with the old name. Made for one call; all its arguments outlive it.
class Freezing {
public:
    Freezing(CountedTimers& timers, TimeActivator& source, const Clock& clock)
        : m_timers(timers)
        , m_source(source)
        , m_clock(clock) {}

    FrozenTimer freeze(TimeStoreNode& node);
    // Freezes a timer again, under the identities of the first time. Answers false and does nothing when it
    // no longer exists.
    bool freezeAgain(FrozenTimer& frozen);
    // The frozen timer gets its name and identity back, and takes in the timer that has that name by now: its
    // time, its windows, and the name that the user gave it meanwhile. Answers false and does nothing when the
    // frozen timer no longer exists.
    bool undo(FrozenTimer& frozen);

private:
    void freeze(TimeStoreNode& node, FrozenTimer& frozen);
    void freezeWindow(TimeStoreWindow& window, FrozenTimer& frozen);
    void freezeApplication(TimeStoreApp& app, FrozenTimer& frozen);
    // "Current App" (number): whether the frozen application was the current one; "Old Name": what it was
    // called.
    void refreshProjects(const PropertyListDictionary& info);
    std::optional<Identity> tellApart(const TimeStoreWindow& window);
    void post(const FrozenTimer::Pair& identities);
    void bringSuccessorsBack(const FrozenTimer& frozen) const;
    // Answers which identities were joined into which, as kTicklogUnbranchNodeNotification tells it.
    FrozenIdentities undoWindow(TimeStoreWindow& window, TimeStoreApp& app, FrozenTimer& frozen);
    FrozenIdentities undoApplication(const std::shared_ptr<TimeStoreApp>& app, FrozenTimer& frozen);
    void enterNamesAgain(const FrozenIdentities& joined) const;
    void joinInto(TimeStoreNode& node, TimeStoreNode& other, FrozenTimer& frozen, FrozenIdentities& joined);

    CountedTimers& m_timers;
    TimeActivator& m_source;
    const Clock& m_clock;
};
