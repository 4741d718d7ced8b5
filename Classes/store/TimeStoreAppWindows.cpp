// SPDX-License-Identifier: MIT
// Windows of one application that meet under the same name or identity.
#include "Classes/store/TKUUIDManager.h"
#include "Classes/store/TimeStoreApp.h"
#include "platform/foundation/text/CleanText.h"

#include <algorithm>

namespace {

void add(const std::pair<std::optional<Identity>, std::optional<Identity>>& pair, Successions& successions) {
    if (pair.first && pair.second && pair.first != pair.second)
        successions.push_back({*pair.first, *pair.second});
}

} // namespace

// Nobody looks for the windows of a frozen application, so they leave their titles' keys to those that go on.
QString TimeStoreApp::keyOf(const QString& title) const {
    return branched() ? ownKeyOf(title) : TimeStoreWindow::keyOf(title);
}

// The key when the title already stands for another identity.
QString TimeStoreApp::ownKeyOf(const QString& title) const {
    return TimeStoreWindow::keyOf(title) + u'\n' + name();
}

bool TimeStoreApp::holds(const TimeStoreWindow& window) const {
    const auto isIt = [&](const Table::value_type& entry) { return entry.second.window.get() == &window; };
    const auto named = m_windows.find(window.name());
    return (named != m_windows.end() && isIt(*named)) || std::ranges::any_of(m_windows, isIt);
}

bool TimeStoreApp::holds(const Identity& identity) const {
    return std::ranges::any_of(m_windows,
                               [&](const auto& entry) { return entry.second.window->uuid() == identity; });
}

// The identity of the title; but a new one if a window has taken that identity along to another title. Two
// windows with one identity could not be told apart.
Identity TimeStoreApp::identityFor(const QString& title) {
    TKUUIDManager& registry = services().registry;
    if (const auto own = registry.knownUUID(ownKeyOf(title)); own && !holds(*own))
        return *own;
    const Identity shared = registry.uuidForName(TimeStoreWindow::keyOf(title));
    return holds(shared) ? registry.setUUID(Identity::brandNew(), ownKeyOf(title)) : shared;
}

void TimeStoreApp::enterInRegistry(const std::unordered_set<Identity>* identities) const {
    TKUUIDManager& registry = services().registry;
    for (const auto& [key, entry] : m_windows) {
        const auto uuid = entry.window->uuid();
        if (!uuid || (identities && !identities->contains(*uuid)))
            continue;
        const QString shared = keyOf(entry.window->name());
        const auto known = registry.knownUUID(shared);
        if (!known)
            registry.setUUID(*uuid, shared);
        else if (known != uuid)
            registry.setUUID(*uuid, ownKeyOf(entry.window->name()));
        else if (!branched())
            registry.forget(ownKeyOf(entry.window->name()));
    }
}

void TimeStoreApp::addChildFromDictionary(const PropertyListDictionary& record) {
    Successions successions;
    takeChild(record, successions);
    tell(successions);
}

void TimeStoreApp::takeChild(const PropertyListDictionary& record, Successions& successions) {
    const QString name = cleanText(record.value(kRecordName).toString());
    if (record.isEmpty() || name.isEmpty())
        return;
    auto window = std::make_shared<TimeStoreWindow>(services(), record, keyOf(name));
    const auto known = m_windows.find(name);
    if (known == m_windows.end()) {
        store(name, std::move(window));
        return;
    }
    // Two timers that were frozen under the same name, for instance on the same day, stay separate rows: each
    // may be in another project.
    if (known->second.window->branched() || window->branched()) {
        if (known->second.window->branched())
            move(known, Identity::brandNew().text());
        store(m_windows.contains(name) ? Identity::brandNew().text() : name, std::move(window));
        return;
    }
    const auto joined = known->second.window;
    moveTime(*joined, *window);
    store(name, window);
    add({joined->uuid(), window->uuid()}, successions);
}

void TimeStoreApp::tellWindowsApart(Successions& successions) {
    std::unordered_set<Identity> seen;
    seen.reserve(m_windows.size());
    std::vector<std::shared_ptr<TimeStoreWindow>> alike;
    for (const auto& [key, entry] : m_windows)
        if (const auto uuid = entry.window->uuid(); uuid && !seen.insert(*uuid).second)
            alike.push_back(entry.window);
    for (const auto& window : alike)
        giveIdentityOfItsOwn(*window, successions);
}

void TimeStoreApp::putBack(const PropertyListDictionary& record) {
    const QString name = record.value(kRecordName).toString();
    const auto known = m_windows.find(name);
    const bool isFrozen = record.value(kRecordBranched).toBool();
    if (known != m_windows.end() && !isFrozen && !known->second.window->branched()) {
        const auto window = known->second.window;
        const QByteArray* bytes = record.value(kRecordUUID).asData();
        window->correctTime(record.value(kRecordActiveTime).number().value_or(0));
        if (const QString* called = record.value(kRecordRenamedName).asString();
            called && !window->renamedNameStorage())
            window->setRenamedNameFormatted({{kRecordName, *called}});
        succeed(bytes ? Identity::fromBytes(*bytes) : std::nullopt, window->uuid());
        return;
    }
    {
        const ChangeAnnouncement children(*this, kChildrenKey);
        const ChangeAnnouncement leaf(*this, kIsLeafKey);
        addChildFromDictionary(record);
    }
    Successions successions;
    tellWindowsApart(successions);
    tell(successions);
}

// Projects that had the shared identity get the new one too.
void TimeStoreApp::giveIdentityOfItsOwn(TimeStoreWindow& window, Successions& successions) {
    const auto shared = window.uuid();
    window.setUuid(services().registry.setUUID(Identity::brandNew(), ownKeyOf(window.name())));
    add({shared, window.uuid()}, successions);
}

TimeStoreApp::Table::iterator TimeStoreApp::placeOf(const TimeStoreWindow& window, const QString& key) {
    const auto isIt = [&](const Table::value_type& entry) { return entry.second.window.get() == &window; };
    // A branched window is stored under another key, and a new window may have taken its old name.
    const auto place = m_windows.find(key);
    return place != m_windows.end() && isIt(*place) ? place : std::ranges::find_if(m_windows, isIt);
}

void TimeStoreApp::move(Table::iterator place, const QString& key) {
    auto moved = m_windows.extract(place);
    moved.key() = key;
    m_windows.insert(std::move(moved));
}

void TimeStoreApp::followRename(TimeStoreWindow& window, const QString& oldName) {
    const auto place = placeOf(window, oldName);
    if (place == m_windows.end())
        return;
    followInRegistry(window, oldName);
    const bool isKeyedByIdentity = window.branched() && window.uuid();
    const QString key = isKeyedByIdentity ? window.uuid()->text() : window.name();
    const auto other = m_windows.find(key);
    if (other == place)
        return;
    if (other != m_windows.end() && !isKeyedByIdentity && !other->second.window->branched()) {
        join(window, *other->second.window);
        return;
    }
    // A frozen window gets no more time and stays separate.
    if (other != m_windows.end())
        move(other, Identity::brandNew().text());
    move(place, key);
}

// The registry has moved the old title's identity to the new title, and it may be another application's. Then
// this window's own identity is kept under its own key.
void TimeStoreApp::followInRegistry(const TimeStoreWindow& window, const QString& oldName) {
    TKUUIDManager& registry = services().registry;
    const QString oldKey = ownKeyOf(oldName);
    const QString newKey = ownKeyOf(window.name());
    const bool hadOwn = registry.knownUUID(oldKey).has_value();
    const auto shared = registry.knownUUID(TimeStoreWindow::keyOf(window.name()));
    registry.forget(oldKey);
    if (window.uuid() && shared != window.uuid() && (shared || hadOwn))
        registry.setUUID(*window.uuid(), newKey);
    else
        registry.forget(newKey);
}

void TimeStoreApp::join(TimeStoreWindow& survivor, TimeStoreWindow& joined) {
    const auto alive = weak_from_this().lock();
    const auto staying = survivor.shared_from_this();
    const auto going = joined.shared_from_this();
    moveTime(joined, survivor);
    willChange(kChildrenKey);
    willChange(kIsLeafKey);
    // An observer may have changed the table.
    if (const auto place = placeOf(joined, joined.name()); place != m_windows.end())
        drop(place);
    const auto place = placeOf(survivor, survivor.name());
    if (place != m_windows.end() && !survivor.branched() && !m_windows.contains(survivor.name()))
        move(place, survivor.name());
    didChange(kChildrenKey);
    didChange(kIsLeafKey);
    leaveTitle(joined, survivor);
    succeed(joined.uuid(), survivor.uuid());
}

// From now on the title stands for the window that goes on with it, even if the registry had forgotten that
// window.
void TimeStoreApp::leaveTitle(const TimeStoreWindow& joined, const TimeStoreWindow& survivor) {
    TKUUIDManager& registry = services().registry;
    const QString shared = TimeStoreWindow::keyOf(survivor.name());
    if (!survivor.uuid() || registry.knownUUID(shared) != joined.uuid())
        return;
    registry.setUUID(*survivor.uuid(), shared);
    registry.forget(ownKeyOf(survivor.name()));
}

// Takes the time from `from`, because somebody may still hold that window.
void TimeStoreApp::moveTime(TimeStoreWindow& from, TimeStoreWindow& to) {
    const Seconds time = from.activeTime();
    to.correctTime(time);
    from.correctTime(-time);
    if (const auto name = from.renamedNameStorage(); name && !to.renamedNameStorage())
        to.setRenamedNameFormatted({{kRecordName, *name}});
}

void TimeStoreApp::succeed(const std::optional<Identity>& former, const std::optional<Identity>& successor) {
    Successions successions;
    add({former, successor}, successions);
    for (Succession& succession : successions)
        succession.application = uuid();
    tell(successions);
}

void TimeStoreApp::tell(const Successions& successions) {
    if (!successions.empty())
        services().notifications.post(kTicklogSucceedNodeNotification, successions);
}
