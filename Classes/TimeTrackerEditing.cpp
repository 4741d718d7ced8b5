// SPDX-License-Identifier: MIT
// The tracker's changes to the whole tree: clearing, reading and writing it.
#include "Classes/TKUUIDManager.h"
#include "Classes/TimeTracker.h"

#include <algorithm>

void TimeTracker::addWindowWithName(const PropertyListValue& name, const PropertyListValue& timeSpent) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    addApplication(std::make_shared<TimeStoreApp>(m_services.store, name, timeSpent));
}

void TimeTracker::reset() {
    enterInRegistry(nullptr);
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

void TimeTracker::tellApart(TimeStoreApp& app, std::unordered_set<Identity>& seen) {
    const auto uuid = app.uuid();
    if (!uuid || seen.insert(*uuid).second)
        return;
    app.setUuid(brandNewUUID());
    m_services.store.notifications.post(kTicklogSucceedNodeNotification, Succession{*uuid, *app.uuid()});
}

int TimeTracker::setArrayRepresentation(const PropertyListArray& entries) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    int damaged = 0;
    std::unordered_set<Identity> seen;
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
        app->tellWindowsApart();
        tellApart(*app, seen);
        addApplication(std::move(app));
    }
    if (damaged > 0)
        m_services.store.log.log(
            QStringLiteral("%1 entries of the database are damaged and were left out.").arg(damaged));
    return damaged;
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
