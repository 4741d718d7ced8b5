// SPDX-License-Identifier: MIT
// Changes of the whole tree: clearing, reading and writing it.
#include "Classes/engine/TimeTracker.h"
#include "Classes/store/IncomingTimers.h"
#include "Classes/store/TKUUIDManager.h"

#include <algorithm>

void TimeTracker::addWindowWithName(const PropertyListValue& name, const PropertyListValue& timeSpent) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    addApplication(std::make_shared<TimeStoreApp>(m_services.store, name, timeSpent));
}

void TimeTracker::enterNames() const {
    m_tree.enterInRegistry(m_services.store.registry, nullptr);
}

void TimeTracker::reset() {
    enterNames();
    {
        const std::lock_guard guard(m_lock);
        willChange(kTimeSetKey);
        const AppSet cleared = m_tree.takeAll();
        m_activeStoreApp.reset();
        // Observers are told next: nothing may point to the cleared timers by then.
        m_activeStoreWindow.reset();
        m_narrowing.drop([](const TimeStoreItem&) { return true; });
        didChange(kTimeSetKey);
        m_tree.forgetAllNames();
        m_timeActivator->resetNotifications();
        setLastResetDate(now());
        // An absence that is under way counts from now on in the empty tree.
        m_countingSince = instant();
    }
    appDidChange();
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
        const ChangeAnnouncement announcement(*this, kTimeSetKey);
        for (auto& app : timers.take()) {
            // The tree may have been cleared since this was made, and have entered identities of its own.
            if (const auto uuid = app->uuid();
                uuid && registry.knownUUID(app->registryKey(app->name())) != uuid)
                registry.setUUID(*uuid, app->registryKey(app->name()));
            addApplication(std::move(app));
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
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    for (const auto& app : applications) {
        const auto other = m_tree.named(app->name());
        if (!other || other == app)
            continue;
        other->correctTime(app->activeTime());
        m_tree.remove(app);
    }
}

void TimeTracker::setLastResetDate(Date date) {
    willChange(kLastResetDateKey);
    willChange(kLastResetDateDisplayStringKey);
    m_lastResetDate = date;
    didChange(kLastResetDateDisplayStringKey);
    didChange(kLastResetDateKey);
}
