// SPDX-License-Identifier: MIT
// The tracker's changes to the whole tree: clearing, removing, reading and writing it.
#include "Classes/TKUUIDManager.h"
#include "Classes/TimeTracker.h"

#include <algorithm>

void TimeTracker::addWindowWithName(const PropertyListValue& name, const PropertyListValue& timeSpent) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    addApplication(std::make_shared<TimeStoreApp>(m_services.store, name, timeSpent));
}

void TimeTracker::reset() {
    {
        const std::lock_guard guard(m_lock);
        AppSet cleared;
        willChange(kTimeSetKey);
        cleared.swap(m_timeSet);
        m_activeStoreApp.reset();
        // Nothing may point into what is cleared when the observers are told.
        m_activeStoreWindow.reset();
        if (m_searchFiltered)
            m_searchFiltered->clear();
        didChange(kTimeSetKey);
        m_timeDictionary.clear();
        m_timeActivator->resetNotifications();
        setLastResetDate(now());
        // An absence that is going on begins anew in the empty tree.
        m_countingSince = instant();
    }
    appDidChange();
}

void TimeTracker::removeUUIDs(const std::unordered_set<Identity>& identities) {
    const auto currentApp = m_activeStoreApp.lock();
    const auto currentWindow = m_activeStoreWindow.lock();
    const bool findsWindowAgain =
        currentWindow && currentWindow->uuid() && identities.contains(*currentWindow->uuid());
    willChange(kTimeSetKey);
    const AppSet removed = takeOut(identities);
    // The current application is looked for again in any case.
    const bool findsAppAgain = m_activeStoreApp.lock() != nullptr;
    m_activeStoreApp.reset();
    const auto holdsCurrentWindow = [&](const std::shared_ptr<TimeStoreApp>& app) {
        const auto windows = app->windows();
        return std::ranges::find(windows, currentWindow) != windows.end();
    };
    if (findsWindowAgain || std::ranges::any_of(removed, holdsCurrentWindow))
        m_activeStoreWindow.reset();
    didChange(kTimeSetKey);
    if (findsAppAgain)
        appDidChange();
    if (findsWindowAgain)
        m_timeActivator->mainWindowDidChange();
}

// Applications whose identity is wanted leave the tree and are answered; windows leave their applications.
TimeTracker::AppSet TimeTracker::takeOut(const std::unordered_set<Identity>& identities) {
    AppSet removed;
    // A copy, because observers of an application's windows may change the set.
    for (const auto& app : AppSet(m_timeSet)) {
        if (app->uuid() && identities.contains(*app->uuid())) {
            forgetName(*app);
            removed.push_back(app);
        } else {
            app->removeUUIDs(identities);
        }
    }
    const auto isRemoved = [&](const TimeStoreItem& item) {
        return std::ranges::any_of(removed, [&](const auto& app) { return app.get() == &item.node(); });
    };
    std::erase_if(m_timeSet, [&](const auto& app) { return isRemoved(*app); });
    if (m_searchFiltered)
        std::erase_if(*m_searchFiltered, [&](const auto& item) { return isRemoved(*item); });
    return removed;
}

void TimeTracker::forgetName(const TimeStoreApp& app) {
    m_timeDictionary.removeIf([&](auto entry) { return entry.value().get() == &app; });
}

PropertyListArray TimeTracker::recordsOf(const std::unordered_set<Identity>& identities) const {
    PropertyListArray entries;
    const auto isWanted = [&](const TimeStoreNode& node) {
        return node.uuid() && identities.contains(*node.uuid());
    };
    for (const auto& app : m_timeSet) {
        const bool isWhole = isWanted(*app);
        PropertyListArray windows;
        for (const auto& window : app->windows())
            if (isWhole || isWanted(*window))
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
    reloadSearchFiltering();
}

PropertyListArray TimeTracker::arrayRepresentation() const {
    PropertyListBuilder builder;
    writeArrayRepresentation(builder);
    const PropertyListValue entries = builder.take();
    return *entries.asArray();
}

void TimeTracker::writeArrayRepresentation(PropertyListSink& sink) const {
    sink.beginArray();
    for (const auto& app : m_timeSet) {
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

// Answers how many were left out.
static int addWindows(TimeStoreApp& app, const PropertyListArray& windows) {
    int damaged = 0;
    for (const PropertyListValue& window : windows)
        if (const PropertyListDictionary* record = window.asDictionary();
            record && !record->value(kRecordName).toString().isEmpty())
            app.addChildFromDictionary(*record);
        else
            ++damaged;
    return damaged;
}

void TimeTracker::setArrayRepresentation(const PropertyListArray& entries) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    int damaged = 0;
    for (const PropertyListValue& value : entries) {
        const PropertyListDictionary* entry = value.asDictionary();
        const PropertyListDictionary* record = entry ? entry->value(kEntryApp).asDictionary() : nullptr;
        if (!record) {
            ++damaged;
            continue;
        }
        auto app = std::make_shared<TimeStoreApp>(m_services.store, *record);
        const PropertyListValue& windows = entry->value(kEntryWindows);
        if (const PropertyListArray* list = windows.asArray())
            damaged += addWindows(*app, *list);
        else if (!windows.isAbsent())
            ++damaged;
        addApplication(std::move(app));
    }
    if (damaged > 0)
        m_services.store.log.log(
            QStringLiteral("%1 entries of the database are damaged and were left out.").arg(damaged));
}

void TimeTracker::dissolve(const AppSet& applications) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    for (const auto& app : applications) {
        const auto other = m_timeDictionary.value(app->name());
        if (!other || other == app)
            continue;
        other->addTimeInterval(app->activeTime());
        std::erase(m_timeSet, app);
    }
}

void TimeTracker::setLastResetDate(Date date) {
    willChange(kLastResetDateKey);
    willChange(kLastResetDateDisplayStringKey);
    m_lastResetDate = date;
    didChange(kLastResetDateDisplayStringKey);
    didChange(kLastResetDateKey);
}
