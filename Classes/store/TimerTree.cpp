// SPDX-License-Identifier: MIT
#include "Classes/store/TimerTree.h"

#include "Classes/store/AccountEntries.h"
#include "Classes/store/TKUUIDManager.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"

#include <algorithm>

std::shared_ptr<TimeStoreApp> TimerTree::named(const QString& name) const {
    return m_named.value(name);
}

void TimerTree::add(const std::shared_ptr<TimeStoreApp>& app) {
    m_named.insert(app->name(), app);
    m_applications.push_back(app);
}

void TimerTree::putLast(const std::shared_ptr<TimeStoreApp>& app) {
    remove(app);
    m_applications.push_back(app);
}

void TimerTree::remove(const std::shared_ptr<TimeStoreApp>& app) {
    std::erase(m_applications, app);
}

TimerTree::AppSet TimerTree::takeAll() {
    return std::exchange(m_applications, {});
}

TimerReferences TimerTree::referencesTo(const TimeStoreItem::Children& items) const {
    std::unordered_set<const TimeStoreNode*> wanted;
    for (const auto& item : items)
        if (item->uuid())
            wanted.insert(&item->node());
    TimerReferences timers;
    for (const auto& app : m_applications) {
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

std::shared_ptr<TimeStoreNode> TimerTree::timerOf(const TimerReference& timer) const {
    for (const auto& app : m_applications) {
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

std::unordered_set<Identity> TimerTree::identitiesOf(const IsMeant& isMeant) const {
    std::unordered_set<Identity> identities;
    const auto add = [&](const TimeStoreNode& node) {
        if (node.uuid())
            identities.insert(*node.uuid());
    };
    for (const auto& app : m_applications) {
        const bool isWhole = isMeant(*app, *app);
        if (isWhole)
            add(*app);
        for (const auto& window : app->windows())
            if (isWhole || isMeant(*app, *window))
                add(*window);
    }
    return identities;
}

bool TimerTree::contains(const TimerReferences& timers, const TimeStoreApp& app, const TimeStoreNode& node) {
    if (!app.uuid() || !node.uuid())
        return false;
    return timers.contains({*app.uuid(), &app == &node ? std::nullopt : node.uuid()});
}

TimerReferences TimerTree::meant(const IsMeant& isMeant) const {
    TimerReferences timers;
    for (const auto& app : m_applications) {
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

std::shared_ptr<TimeStoreApp> TimerTree::applicationHolding(const TimeStoreNode& node) const {
    for (const auto& app : m_applications) {
        if (app.get() == &node)
            return app;
        for (const auto& held : app->windows())
            if (held.get() == &node)
                return app;
    }
    return nullptr;
}

TimerTree::AppSet TimerTree::takeOut(const IsMeant& isMeant) {
    AppSet removed;
    // Works on a copy, because observers of an application's windows may change the list.
    for (const auto& app : AppSet(m_applications)) {
        if (isMeant(*app, *app)) {
            forgetNames(*app);
            removed.push_back(app);
        } else {
            app->removeWindows([&](const TimeStoreWindow& window) { return isMeant(*app, window); });
        }
    }
    for (const auto& app : removed)
        remove(app);
    return removed;
}

void TimerTree::forgetNames(const TimeStoreApp& app) {
    m_named.removeIf([&](auto entry) { return entry.value().get() == &app; });
}

// A discarded timer may come back by its name and must get the same identity. The registry may have forgotten
// it, because it was in no project.
void TimerTree::enterInRegistry(TKUUIDManager& registry,
                                const std::unordered_set<Identity>* identities) const {
    for (const auto& app : m_applications) {
        app->enterInRegistry(identities);
        const auto uuid = app->uuid();
        if (!uuid || (identities && !identities->contains(*uuid)))
            continue;
        const QString key = app->registryKey(app->name());
        const auto known = registry.knownUUID(key);
        if (!known || (known != uuid && m_named.value(app->name()) == app))
            registry.setUUID(*uuid, key);
    }
}

PropertyListArray TimerTree::recordsOf(const TimerReferences& timers) const {
    PropertyListArray entries;
    for (const auto& app : m_applications) {
        const bool isWhole = contains(timers, *app, *app);
        PropertyListArray windows;
        for (const auto& window : app->windows())
            if (isWhole || contains(timers, *app, *window))
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

std::shared_ptr<TimeStoreApp> TimerTree::applicationOf(const PropertyListDictionary& record) const {
    const QByteArray* bytes = record.value(kRecordUUID).asData();
    const auto uuid = bytes ? Identity::fromBytes(*bytes) : std::nullopt;
    const auto same =
        std::ranges::find_if(m_applications, [&](const auto& app) { return uuid && app->uuid() == uuid; });
    return same != m_applications.end() ? *same : m_named.value(record.value(kRecordName).toString());
}

std::vector<Identity> TimerTree::identities() const {
    std::vector<Identity> identities;
    identities.reserve(m_applications.size());
    for (const auto& app : m_applications)
        if (const auto uuid = app->uuid())
            identities.push_back(*uuid);
    return identities;
}

TimeStoreItem::Children TimerTree::timersOf(const std::unordered_set<Identity>& childUUIDs,
                                            bool excludingIncludedChildren) const {
    std::unordered_set<Identity> remaining;
    const std::unordered_set<Identity>& wanted = excludingIncludedChildren ? remaining : childUUIDs;
    const auto isIn = [](const std::unordered_set<Identity>& set, const TimeStoreNode& node) {
        return node.uuid() && set.contains(*node.uuid());
    };
    if (excludingIncludedChildren) {
        remaining = childUUIDs;
        for (const auto& app : m_applications)
            if (isIn(childUUIDs, *app))
                for (const auto& window : app->windows())
                    if (window->uuid() && window->uuid() != app->uuid())
                        remaining.erase(*window->uuid());
    }
    TimeStoreItem::Children found;
    for (const auto& app : m_applications) {
        if (isIn(wanted, *app))
            found.push_back(app);
        else
            app->appendWindows(wanted, found);
    }
    return found;
}

void TimerTree::write(PropertyListSink& sink) const {
    sink.beginArray();
    for (const auto& app : m_applications) {
        sink.beginDictionary();
        sink.key(kEntryApp);
        app->writeRecord(sink);
        sink.key(kEntryWindows);
        sink.beginArray();
        app->writeWindowRecords(sink);
        sink.endArray();
        sink.endDictionary();
    }
    sink.endArray();
}
