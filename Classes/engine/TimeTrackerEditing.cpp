// SPDX-License-Identifier: MIT
// Changes of the whole tree: clearing, reading and writing it, freezing and ruling in it.
#include "Classes/engine/Freezing.h"
#include "Classes/engine/PastRuling.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/store/IncomingTimers.h"
#include "Classes/store/TKUUIDManager.h"

#include <algorithm>

void TimeTracker::addWindowWithName(const PropertyListValue& name, const PropertyListValue& timeSpent) {
    const ChangeAnnouncement announcement = m_timers.changeOfSet();
    m_timers.add(std::make_shared<TimeStoreApp>(m_services.store, name, timeSpent));
}

void TimeTracker::enterNames() const {
    m_timers.tree().enterInRegistry(m_services.store.registry, nullptr);
}

void TimeTracker::reset() {
    waitNoLonger();
    enterNames();
    {
        const std::lock_guard guard(m_timers.lock());
        willChange(kTimeSetKey);
        const AppSet cleared = m_timers.tree().takeAll();
        m_timers.forgetApp();
        // Observers are told next: nothing may point to the cleared timers by then.
        m_timers.forgetWindow();
        m_timers.narrowing().drop([](const TimeStoreItem&) { return true; });
        didChange(kTimeSetKey);
        m_timers.tree().forgetAllNames();
        m_timeActivator->resetNotifications();
        setLastResetDate(now());
        // An absence that is under way counts from now on in the empty tree.
        m_countingSince = instant();
    }
    appDidChange();
}

FrozenTimer TimeTracker::branchNode(TimeStoreNode& node) {
    return freezing().freeze(node);
}

std::vector<FrozenTimer> TimeTracker::branchUUIDs(const std::vector<Identity>& childUUIDs) {
    std::vector<FrozenTimer> frozen;
    for (const auto& item : timeChildrenForChildUUIDs({childUUIDs.begin(), childUUIDs.end()}, false))
        if (!item->branched())
            frozen.push_back(branchNode(item->node()));
    return frozen;
}

bool TimeTracker::unbranchNode(FrozenTimer& frozen) {
    return freezing().undo(frozen);
}

bool TimeTracker::branchNodeAgain(FrozenTimer& frozen) {
    return freezing().freezeAgain(frozen);
}

Freezing TimeTracker::freezing() {
    return {m_timers, *m_timeActivator, m_services.activity.clock};
}

int TimeTracker::countSayingMoreThan(const PastTitles& past) const {
    return PastRuling::countOf(tree(), past);
}

std::unordered_set<Identity> TimeTracker::sayNoMoreThan(const PastTitles& past) {
    // The time so far is credited under the old names; from now on the rules apply to what is in front.
    m_timeActivator->appDidChange();
    const std::lock_guard guard(m_timers.lock());
    const bool findsAppAgain = m_timers.app() != nullptr;
    PastRuling ruling(m_timers, past);
    ruling.hide();
    if (findsAppAgain)
        appDidChange();
    return ruling.forgetNames();
}

PropertyListArray TimeTracker::arrayRepresentation() const {
    PropertyListBuilder builder;
    writeArrayRepresentation(builder);
    const PropertyListValue entries = builder.take();
    return *entries.asArray();
}

int TimeTracker::setArrayRepresentation(const PropertyListArray& entries) {
    IncomingTimers timers(m_services.store, entries, [this] { enterNames(); });
    timers.makeAll();
    return take(timers);
}

int TimeTracker::take(IncomingTimers& timers) {
    TKUUIDManager& registry = m_services.store.registry;
    {
        const ChangeAnnouncement announcement = m_timers.changeOfSet();
        for (auto& app : timers.take()) {
            // The tree may have been cleared since this was made, and have entered identities of its own.
            if (const auto uuid = app->uuid();
                uuid && registry.knownUUID(app->registryKey(app->name())) != uuid)
                registry.setUUID(*uuid, app->registryKey(app->name()));
            m_timers.add(std::move(app));
        }
    }
    if (!timers.successions().empty())
        m_services.store.notifications.post(kTicklogSucceedNodeNotification, timers.successions());
    if (const int damaged = timers.damaged(); damaged > 0)
        m_services.store.log.log(
            QStringLiteral("%1 entries of the database are damaged and were left out.").arg(damaged));
    return timers.damaged();
}

void TimeTracker::dissolve(const AppSet& applications) {
    const ChangeAnnouncement announcement = m_timers.changeOfSet();
    for (const auto& app : applications) {
        const auto other = m_timers.tree().named(app->name());
        if (!other || other == app)
            continue;
        m_timers.correctTime(*other, app->activeTime());
        m_timers.tree().remove(app);
    }
}

void TimeTracker::setLastResetDate(Date date) {
    willChange(kLastResetDateKey);
    willChange(kLastResetDateDisplayStringKey);
    m_lastResetDate = date;
    didChange(kLastResetDateDisplayStringKey);
    didChange(kLastResetDateKey);
}
