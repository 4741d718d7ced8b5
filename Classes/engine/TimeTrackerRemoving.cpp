// SPDX-License-Identifier: MIT
// How timers leave the tree and come back, and what is kept of their names.
#include "Classes/engine/TimeTracker.h"
#include "Classes/store/TKUUIDManager.h"

#include <algorithm>

namespace {

bool isIn(const std::unordered_set<Identity>& identities, const TimeStoreNode& node) {
    return node.uuid() && identities.contains(*node.uuid());
}

bool isIn(const TimerReferences& timers, const TimeStoreApp& app, const TimeStoreNode& node) {
    if (!app.uuid() || !node.uuid())
        return false;
    return timers.contains({*app.uuid(), &app == &node ? std::nullopt : node.uuid()});
}

std::optional<Identity> identityOf(const PropertyListValue& record) {
    const PropertyListDictionary* entries = record.asDictionary();
    const QByteArray* bytes = entries ? entries->value(kRecordUUID).asData() : nullptr;
    return bytes ? Identity::fromBytes(*bytes) : std::nullopt;
}

// Which timers entries are of that recordsOf() has made.
TimerReferences referencesOf(const PropertyListArray& entries) {
    TimerReferences timers;
    for (const PropertyListValue& entry : entries) {
        const PropertyListValue record = entry.asDictionary()->value(kEntryApp);
        const auto application = identityOf(record);
        if (!application)
            continue;
        if (record.asDictionary()->contains(kRecordActiveTime)) {
            timers.insert({*application, std::nullopt});
            continue;
        }
        for (const PropertyListValue& window : *entry.asDictionary()->value(kEntryWindows).asArray())
            if (const auto identity = identityOf(window))
                timers.insert({*application, identity});
    }
    return timers;
}

} // namespace

TimerReferences TimeTracker::referencesTo(const TimeStoreItem::Children& items) const {
    std::unordered_set<const TimeStoreNode*> wanted;
    for (const auto& item : items)
        wanted.insert(&item->node());
    TimerReferences timers;
    for (const auto& app : m_timeSet) {
        if (!app->uuid())
            continue;
        if (wanted.contains(app.get()))
            timers.insert({*app->uuid(), std::nullopt});
        for (const auto& window : app->windows())
            if (window->uuid() && wanted.contains(window.get()))
                timers.insert({*app->uuid(), window->uuid()});
    }
    return timers;
}

std::shared_ptr<TimeStoreNode> TimeTracker::timerOf(const TimerReference& timer) const {
    for (const auto& app : m_timeSet) {
        if (app->uuid() != timer.application)
            continue;
        if (!timer.window)
            return app;
        for (const auto& window : app->windows())
            if (window->uuid() == timer.window)
                return window;
    }
    return nullptr;
}

void TimeTracker::removeUUIDs(const std::unordered_set<Identity>& identities) {
    remove([&](const TimeStoreApp&, const TimeStoreNode& node) { return isIn(identities, node); });
}

void TimeTracker::removeTimers(const TimerReferences& timers) {
    remove([&](const TimeStoreApp& app, const TimeStoreNode& node) { return isIn(timers, app, node); });
}

void TimeTracker::remove(const IsMeant& isMeant) {
    const auto currentApp = m_activeStoreApp.lock();
    const auto currentWindow = m_activeStoreWindow.lock();
    const auto holder = currentWindow ? applicationHolding(*currentWindow) : nullptr;
    const bool findsWindowAgain = holder && isMeant(*holder, *currentWindow);
    const std::unordered_set<Identity> going = identitiesOf(isMeant);
    enterInRegistry(&going);
    m_services.store.notifications.post(kTicklogRemoveTimersNotification, meant(isMeant));
    willChange(kTimeSetKey);
    const AppSet removed = takeOut(isMeant);
    // The current application is looked for again in any case.
    const bool findsAppAgain = m_activeStoreApp.lock() != nullptr;
    m_activeStoreApp.reset();
    if (findsWindowAgain || std::ranges::find(removed, holder) != removed.end())
        m_activeStoreWindow.reset();
    didChange(kTimeSetKey);
    if (findsAppAgain)
        appDidChange();
    if (findsWindowAgain)
        m_timeActivator->mainWindowDidChange();
}

std::unordered_set<Identity> TimeTracker::identitiesOf(const IsMeant& isMeant) const {
    std::unordered_set<Identity> identities;
    const auto add = [&](const TimeStoreNode& node) {
        if (node.uuid())
            identities.insert(*node.uuid());
    };
    for (const auto& app : m_timeSet) {
        const bool isWhole = isMeant(*app, *app);
        if (isWhole)
            add(*app);
        for (const auto& window : app->windows())
            if (isWhole || isMeant(*app, *window))
                add(*window);
    }
    return identities;
}

TimerReferences TimeTracker::meant(const IsMeant& isMeant) const {
    TimerReferences timers;
    for (const auto& app : m_timeSet) {
        if (!app->uuid())
            continue;
        if (isMeant(*app, *app)) {
            timers.insert({*app->uuid(), std::nullopt});
            continue;
        }
        for (const auto& window : app->windows())
            if (window->uuid() && isMeant(*app, *window))
                timers.insert({*app->uuid(), window->uuid()});
    }
    return timers;
}

std::shared_ptr<TimeStoreApp> TimeTracker::applicationHolding(const TimeStoreNode& node) const {
    for (const auto& app : m_timeSet) {
        if (app.get() == &node)
            return app;
        for (const auto& held : app->windows())
            if (held.get() == &node)
                return app;
    }
    return nullptr;
}

// Applications that are meant leave the tree and are answered; windows leave their applications.
TimeTracker::AppSet TimeTracker::takeOut(const IsMeant& isMeant) {
    AppSet removed;
    // A copy, because observers of an application's windows may change the set.
    for (const auto& app : AppSet(m_timeSet)) {
        if (isMeant(*app, *app)) {
            forgetName(*app);
            removed.push_back(app);
        } else {
            app->removeWindows([&](const TimeStoreWindow& window) { return isMeant(*app, window); });
        }
    }
    const auto isRemoved = [&](const TimeStoreItem& item) {
        return std::ranges::any_of(removed, [&](const auto& app) { return app.get() == &item.node(); });
    };
    std::erase_if(m_timeSet, [&](const auto& app) { return isRemoved(*app); });
    m_narrowing.drop(isRemoved);
    return removed;
}

void TimeTracker::forgetName(const TimeStoreApp& app) {
    m_timeDictionary.removeIf([&](auto entry) { return entry.value().get() == &app; });
}

// Whatever is discarded may come back by its name, and is to be who it was: the registry may have forgotten it in the
// meantime, because no project had it.
void TimeTracker::enterInRegistry(const std::unordered_set<Identity>* identities) const {
    TKUUIDManager& registry = m_services.store.registry;
    for (const auto& app : m_timeSet) {
        app->enterInRegistry(identities);
        const auto uuid = app->uuid();
        if (!uuid || (identities && !identities->contains(*uuid)))
            continue;
        const QString key = app->registryKey(app->name());
        const auto known = registry.knownUUID(key);
        if (!known || (known != uuid && m_timeDictionary.value(app->name()) == app))
            registry.setUUID(*uuid, key);
    }
}

PropertyListArray TimeTracker::recordsOf(const TimerReferences& timers) const {
    PropertyListArray entries;
    for (const auto& app : m_timeSet) {
        const bool isWhole = isIn(timers, *app, *app);
        PropertyListArray windows;
        for (const auto& window : app->windows())
            if (isWhole || isIn(timers, *app, *window))
                windows.emplace_back(window->dictionaryRepresentation());
        if (!isWhole && windows.empty())
            continue;
        PropertyListDictionary record = app->dictionaryRepresentation();
        if (!isWhole)
            record.remove(kRecordActiveTime);
        entries.emplace_back(
            PropertyListDictionary{{kEntryApp, std::move(record)}, {kEntryWindows, std::move(windows)}});
    }
    return entries;
}

std::shared_ptr<TimeStoreApp> TimeTracker::applicationOf(const PropertyListDictionary& record) const {
    const QByteArray* bytes = record.value(kRecordUUID).asData();
    const auto uuid = bytes ? Identity::fromBytes(*bytes) : std::nullopt;
    const auto same =
        std::ranges::find_if(m_timeSet, [&](const auto& app) { return uuid && app->uuid() == uuid; });
    return same != m_timeSet.end() ? *same : m_timeDictionary.value(record.value(kRecordName).toString());
}

void TimeTracker::putBack(const PropertyListArray& entries) {
    PropertyListArray gone;
    for (const PropertyListValue& entry : entries) {
        const PropertyListDictionary& record = *entry.asDictionary()->value(kEntryApp).asDictionary();
        const auto app = applicationOf(record);
        if (!app) {
            gone.push_back(entry);
            continue;
        }
        if (const auto time = record.value(kRecordActiveTime).asReal())
            app->addTimeInterval(*time);
        for (const PropertyListValue& window : *entry.asDictionary()->value(kEntryWindows).asArray())
            app->putBack(*window.asDictionary());
    }
    setArrayRepresentation(gone);
    m_services.store.notifications.post(kTicklogPutBackTimersNotification, referencesOf(entries));
    reloadSearchFiltering();
}
