// SPDX-License-Identifier: MIT
// The tracker's changes to the whole tree: freezing, clearing, removing, reading and writing it.
#include "Classes/TKUUIDManager.h"
#include "Classes/TimeTracker.h"
#include "platform/foundation/DateStyles.h"
#include "platform/foundation/LocalizedStrings.h"

#include <algorithm>

namespace {

const QString kInfoCurrentApp = QStringLiteral("Current App");
const QString kInfoOldName = QStringLiteral("Old Name");

} // namespace

void TimeTracker::branchNode(TimeStoreNode& node) {
    if (auto* app = dynamic_cast<TimeStoreApp*>(&node))
        branchApplication(*app);
    else if (auto* window = dynamic_cast<TimeStoreWindow*>(&node))
        branchWindow(*window);
}

// " (Frozen 11/20/26)" behind the name.
static QString frozenName(const QString& name, Date today) {
    return name + localized(" (Frozen %@)").replace(QLatin1String("%@"), shortDate(today));
}

void TimeTracker::branchWindow(TimeStoreWindow& window) {
    // The table may hold the last share but ours while the window changes its key.
    const auto alive = window.shared_from_this();
    const QString oldName = window.name();
    window.setBranched(true);
    window.setName(frozenName(oldName, now()));
    window.setRenamedNameFormatted({{kRecordName, oldName}});
    const std::optional<Identity> oldIdentity = window.uuid();
    const Identity newIdentity = brandNewUUID();
    window.setUuid(newIdentity);
    // Whatever is on the screen under that number is the fresh timer's from now on.
    window.setWindowElement(WindowElement());
    postBranching(oldIdentity, newIdentity);
    m_activeStoreWindow = nullptr;
    m_timeActivator->mainWindowDidChange();
}

void TimeTracker::branchApplication(TimeStoreApp& app) {
    const auto alive = std::static_pointer_cast<TimeStoreApp>(app.shared_from_this());
    const QString oldName = app.name();
    const std::optional<Identity> oldIdentity = app.uuid();
    const bool wasCurrent = &app == m_activeStoreApp;
    m_timeDictionary.remove(oldName);
    app.setName(frozenName(oldName, now()));
    app.setRenamedNameFormatted({{kRecordName, oldName}});
    app.setBranched(true);
    const Identity newIdentity = brandNewUUID();
    willChange(kTimeSetKey);
    {
        const std::lock_guard guard(m_lock);
        std::erase(m_timeSet, alive);
        app.setUuid(newIdentity);
        for (const auto& window : app.windows()) {
            const std::optional<Identity> oldChild = window->uuid();
            const Identity newChild = brandNewUUID();
            window->setUuid(newChild);
            postBranching(oldChild, newChild);
        }
        m_timeSet.push_back(alive);
    }
    didChange(kTimeSetKey);
    postBranching(oldIdentity, newIdentity);
    refreshProjects({{kInfoCurrentApp, wasCurrent ? 1 : 0}, {kInfoOldName, oldName}});
}

void TimeTracker::postBranching(const std::optional<Identity>& oldIdentity, const Identity& newIdentity) {
    FrozenIdentities frozen;
    if (oldIdentity)
        frozen.emplace(*oldIdentity, newIdentity);
    m_services.store.notifications.post(kTicklogBranchNodeNotification, std::move(frozen));
}

void TimeTracker::refreshProjects(const PropertyListDictionary& info) {
    if (info.value(kInfoCurrentApp).toBool()) {
        setCurrentApp(info.value(kInfoOldName).toString());
        m_activeStoreWindow = nullptr;
        m_timeActivator->mainWindowDidChange();
    }
    m_services.store.notifications.post(kTicklogRefreshProjectsNotification);
}

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
        m_activeStoreApp = nullptr;
        // Nothing may point into what is cleared when the observers are told.
        m_activeStoreWindow = nullptr;
        if (m_searchFiltered)
            m_searchFiltered->clear();
        didChange(kTimeSetKey);
        m_timeDictionary.clear();
        m_timeActivator->resetNotifications();
        setLastResetDate(now());
    }
    appDidChange();
}

void TimeTracker::removeUUIDs(const std::unordered_set<Identity>& identities) {
    // The current ones are looked at again below, after they may have left the tree.
    const auto currentApp = m_activeStoreApp ? m_activeStoreApp->shared_from_this() : nullptr;
    const auto currentWindow = m_activeStoreWindow ? m_activeStoreWindow->shared_from_this() : nullptr;
    bool findsAppAgain = false;
    bool findsWindowAgain = false;
    willChange(kTimeSetKey);
    AppSet kept;
    kept.reserve(m_timeSet.size());
    for (const auto& app : m_timeSet) {
        if (app->uuid() && identities.contains(*app->uuid())) {
            forgetName(*app);
        } else {
            app->removeUUIDs(identities);
            kept.push_back(app);
        }
        if (app.get() == m_activeStoreApp) {
            m_activeStoreApp = nullptr;
            findsAppAgain = true;
        }
    }
    if (currentWindow && currentWindow->uuid() && identities.contains(*currentWindow->uuid())) {
        m_activeStoreWindow = nullptr;
        findsWindowAgain = true;
    } else if (currentApp && m_activeStoreWindow && std::ranges::find(kept, currentApp) == kept.end()) {
        // Its application is gone, and the window with it.
        m_activeStoreWindow = nullptr;
    }
    m_timeSet = std::move(kept);
    didChange(kTimeSetKey);
    if (findsAppAgain)
        appDidChange();
    if (findsWindowAgain)
        m_timeActivator->mainWindowDidChange();
}

void TimeTracker::forgetName(const TimeStoreApp& app) {
    m_timeDictionary.removeIf([&](auto entry) { return entry.value().get() == &app; });
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

void TimeTracker::setArrayRepresentation(const PropertyListArray& entries) {
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    for (const PropertyListValue& value : entries) {
        const PropertyListDictionary* entry = value.asDictionary();
        const PropertyListDictionary* record = entry ? entry->value(kEntryApp).asDictionary() : nullptr;
        if (!record)
            continue;
        auto app = std::make_shared<TimeStoreApp>(m_services.store, *record);
        if (const PropertyListArray* windows = entry->value(kEntryWindows).asArray())
            for (const PropertyListValue& window : *windows)
                if (const PropertyListDictionary* windowRecord = window.asDictionary())
                    app->addChildFromDictionary(*windowRecord);
        addApplication(std::move(app));
    }
}

void TimeTracker::setLastResetDate(Date date) {
    willChange(kLastResetDateKey);
    willChange(kLastResetDateDisplayStringKey);
    m_lastResetDate = date;
    didChange(kLastResetDateDisplayStringKey);
    didChange(kLastResetDateKey);
}
