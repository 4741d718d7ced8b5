// SPDX-License-Identifier: MIT
// Timers leave the tree and come back; what the registry keeps of their names.
#include "Classes/engine/TimeTracker.h"
#include "Classes/store/AccountEntries.h"

#include <algorithm>

namespace {

bool isIn(const std::unordered_set<Identity>& identities, const TimeStoreNode& node) {
    return node.uuid() && identities.contains(*node.uuid());
}

std::optional<Identity> identityOf(const PropertyListValue& record) {
    const PropertyListDictionary* entries = record.asDictionary();
    const QByteArray* bytes = entries ? entries->value(kRecordUUID).asData() : nullptr;
    return bytes ? Identity::fromBytes(*bytes) : std::nullopt;
}

// Which timers the entries describe. They come from recordsOf().
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

void TimeTracker::removeUUIDs(const std::unordered_set<Identity>& identities) {
    remove([&](const TimeStoreApp&, const TimeStoreNode& node) { return isIn(identities, node); });
}

void TimeTracker::removeTimers(const TimerReferences& timers) {
    remove([&](const TimeStoreApp& app, const TimeStoreNode& node) {
        return TimerTree::contains(timers, app, node);
    });
}

void TimeTracker::remove(const TimerTree::IsMeant& isMeant) {
    const auto currentApp = m_timers.app();
    const auto currentWindow = m_timers.window();
    const auto holder = currentWindow ? m_timers.tree().applicationHolding(*currentWindow) : nullptr;
    const bool findsWindowAgain = holder && isMeant(*holder, *currentWindow);
    const std::unordered_set<Identity> going = m_timers.tree().identitiesOf(isMeant);
    m_timers.tree().enterInRegistry(m_services.store.registry, &going);
    m_services.store.notifications.post(kTicklogRemoveTimersNotification, m_timers.tree().meant(isMeant));
    willChange(kTimeSetKey);
    const AppSet removed = m_timers.tree().takeOut(isMeant);
    m_timers.dropRows(removed);
    // The current application is looked up again, whether it was removed or not.
    const bool findsAppAgain = m_timers.app() != nullptr;
    m_timers.forgetApp();
    if (findsWindowAgain || std::ranges::find(removed, holder) != removed.end())
        m_timers.forgetWindow();
    didChange(kTimeSetKey);
    if (findsAppAgain)
        appDidChange();
    if (findsWindowAgain)
        m_timeActivator->mainWindowDidChange();
}

void TimeTracker::putBack(const PropertyListArray& entries) {
    PropertyListArray gone;
    for (const PropertyListValue& entry : entries) {
        const PropertyListDictionary& record = *entry.asDictionary()->value(kEntryApp).asDictionary();
        const auto app = m_timers.tree().applicationOf(record);
        if (!app) {
            gone.push_back(entry);
            continue;
        }
        if (const auto time = record.value(kRecordActiveTime).asReal())
            m_timers.correctTime(*app, *time);
        for (const PropertyListValue& window : *entry.asDictionary()->value(kEntryWindows).asArray())
            app->putBack(*window.asDictionary());
    }
    setArrayRepresentation(gone);
    m_services.store.notifications.post(kTicklogPutBackTimersNotification, referencesOf(entries));
    reloadSearchFiltering();
}
