// SPDX-License-Identifier: MIT
// Freezing timers, and undoing it.
#include "Classes/engine/TimeTracker.h"
#include "Classes/store/TKUUIDManager.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/DateStyles.h"

#include <algorithm>

namespace {

const QString kInfoCurrentApp = QStringLiteral("Current App");
const QString kInfoOldName = QStringLiteral("Old Name");

// Appends " (Frozen 11/20/26)".
QString frozenName(const QString& name, Date today) {
    return name + localized(" (Frozen %@)").replace(QLatin1String("%@"), shortDate(today));
}

void nameAgain(TimeStoreNode& node, const FrozenTimer& frozen) {
    node.setBranched(false);
    node.setName(frozen.name());
    node.setRenamedNameFormatted({{kRecordName, frozen.renamedName().value_or(frozen.name())}});
}

void takeIdentityBack(TimeStoreNode& node, const FrozenTimer::Pair& identities, FrozenIdentities& joined) {
    if (!identities.before)
        return;
    node.setUuid(identities.before);
    joined.emplace(identities.after, *identities.before);
}

} // namespace

FrozenTimer TimeTracker::branchNode(TimeStoreNode& node) {
    FrozenTimer frozen(node);
    branch(node, frozen);
    return frozen;
}

std::vector<FrozenTimer> TimeTracker::branchUUIDs(const std::vector<Identity>& childUUIDs) {
    std::vector<FrozenTimer> frozen;
    for (const auto& item : timeChildrenForChildUUIDs({childUUIDs.begin(), childUUIDs.end()}, false))
        if (!item->branched())
            frozen.push_back(branchNode(item->node()));
    return frozen;
}

bool TimeTracker::branchNodeAgain(FrozenTimer& frozen) {
    const auto identity = frozen.own().before;
    if (!identity)
        return false;
    for (const auto& item : timeChildrenForChildUUIDs({*identity}, false)) {
        if (item->isApp() != frozen.isApp() || item->branched())
            continue;
        FrozenTimer again(item->node(), &frozen);
        branch(item->node(), again);
        frozen = std::move(again);
        return true;
    }
    return false;
}

void TimeTracker::branch(TimeStoreNode& node, FrozenTimer& frozen) {
    if (auto* app = dynamic_cast<TimeStoreApp*>(&node))
        branchApplication(*app, frozen);
    else if (auto* window = dynamic_cast<TimeStoreWindow*>(&node))
        branchWindow(*window, frozen);
}

void TimeTracker::branchWindow(TimeStoreWindow& window, FrozenTimer& frozen) {
    // The table may hold the last reference but this one, and drops it while the window changes its key.
    const auto alive = window.shared_from_this();
    const QString oldName = window.name();
    const std::optional<Identity> known = tellApart(window);
    window.setBranched(true);
    window.setName(frozenName(oldName, now()));
    window.setRenamedNameFormatted({{kRecordName, oldName}});
    window.setUuid(frozen.replace(window.uuid()));
    // From now on the window on the screen belongs to the fresh timer.
    window.setWindowElement(WindowElement());
    postBranching({known, *window.uuid()});
    bringSuccessorsBack(frozen);
    m_activeStoreWindow.reset();
    m_timeActivator->mainWindowDidChange();
}

void TimeTracker::branchApplication(TimeStoreApp& app, FrozenTimer& frozen) {
    const auto alive = std::static_pointer_cast<TimeStoreApp>(app.shared_from_this());
    const QString oldName = app.name();
    const bool wasCurrent = alive == m_activeStoreApp.lock();
    m_tree.forgetName(oldName);
    app.setName(frozenName(oldName, now()));
    app.setRenamedNameFormatted({{kRecordName, oldName}});
    app.setBranched(true);
    const Identity newIdentity = frozen.replace(app.uuid());
    willChange(kTimeSetKey);
    {
        const std::lock_guard guard(m_lock);
        m_tree.remove(alive);
        app.setUuid(newIdentity);
        for (const auto& window : app.windows()) {
            const std::optional<Identity> known = tellApart(*window);
            window->setUuid(frozen.replace(window->uuid()));
            postBranching({known, *window->uuid()});
        }
        m_tree.putLast(alive);
    }
    didChange(kTimeSetKey);
    postBranching(frozen.own());
    bringSuccessorsBack(frozen);
    refreshProjects({{kInfoCurrentApp, wasCurrent ? 1 : 0}, {kInfoOldName, oldName}});
}

// Answers the identity by which projects know this window. If another application's window shares it, this
// window gets one of its own first, so that projects keep the other window.
std::optional<Identity> TimeTracker::tellApart(const TimeStoreWindow& window) {
    const std::optional<Identity> shared = window.uuid();
    const auto goesByIt = [&](const std::shared_ptr<TimeStoreWindow>& other) {
        return other.get() != &window && other->uuid() == shared;
    };
    const auto holdsSuch = [&](const std::shared_ptr<TimeStoreApp>& app) {
        return std::ranges::any_of(app->windows(), goesByIt);
    };
    if (!shared || std::ranges::none_of(m_tree.applications(), holdsSuch))
        return shared;
    const Identity own = brandNewUUID();
    m_services.store.notifications.post(kTicklogSucceedNodeNotification, Successions{{*shared, own}});
    return own;
}

void TimeTracker::postBranching(const FrozenTimer::Pair& identities) {
    FrozenIdentities frozen;
    if (identities.before)
        frozen.emplace(*identities.before, identities.after);
    m_services.store.notifications.post(kTicklogBranchNodeNotification, std::move(frozen));
}

void TimeTracker::bringSuccessorsBack(const FrozenTimer& frozen) const {
    if (frozen.successors().empty())
        return;
    // This may save the projects, and saving removes unused names from the registry. So the names are entered
    // after it.
    m_services.store.notifications.post(kTicklogRefreshProjectsNotification);
    for (const auto& [key, identity] : frozen.successors())
        m_services.store.registry.setUUID(identity, key);
}

void TimeTracker::refreshProjects(const PropertyListDictionary& info) {
    if (info.value(kInfoCurrentApp).toBool()) {
        setCurrentApp(info.value(kInfoOldName).toString());
        m_activeStoreWindow.reset();
        m_timeActivator->mainWindowDidChange();
    }
    m_services.store.notifications.post(kTicklogRefreshProjectsNotification);
}

bool TimeTracker::unbranchNode(FrozenTimer& frozen) {
    std::optional<FrozenIdentities> joined;
    for (const auto& app : AppSet(m_tree.applications())) {
        if (frozen.isApp() && app->uuid() == frozen.own().after)
            joined = unbranchApplication(app, frozen);
        else if (!frozen.isApp())
            if (const auto window = app->windowOfIdentity(frozen.own().after))
                joined = unbranchWindow(*window, *app, frozen);
        if (joined)
            break;
    }
    if (!joined)
        return false;
    enterNamesAgain(*joined);
    m_services.store.notifications.post(kTicklogUnbranchNodeNotification, *std::move(joined));
    // The search result may still hold timers that no longer exist.
    reloadSearchFiltering();
    m_services.store.notifications.post(kTicklogRefreshProjectsNotification);
    return true;
}

FrozenIdentities TimeTracker::unbranchWindow(TimeStoreWindow& window, TimeStoreApp& app,
                                             FrozenTimer& frozen) {
    const std::lock_guard guard(m_lock);
    const ChangeAnnouncement children(app, kChildrenKey);
    const ChangeAnnouncement leaf(app, kIsLeafKey);
    FrozenIdentities joined;
    const auto successor = app.takeWindow(frozen.name());
    nameAgain(window, frozen);
    takeIdentityBack(window, frozen.own(), joined);
    if (successor) {
        app.takeElement(window, *successor);
        joinInto(window, *successor, frozen, joined);
    }
    return joined;
}

FrozenIdentities TimeTracker::unbranchApplication(const std::shared_ptr<TimeStoreApp>& app,
                                                  FrozenTimer& frozen) {
    const std::lock_guard guard(m_lock);
    const ChangeAnnouncement announcement(*this, kTimeSetKey);
    FrozenIdentities joined;
    m_tree.forgetNames(*app);
    const auto successor = m_tree.named(frozen.name());
    nameAgain(*app, frozen);
    takeIdentityBack(*app, frozen.own(), joined);
    for (const FrozenTimer::Pair& pair : frozen.windows())
        if (const auto window = app->windowOfIdentity(pair.after))
            takeIdentityBack(*window, pair, joined);
    m_tree.giveName(frozen.name(), app);
    if (!successor)
        return joined;
    m_tree.remove(successor);
    joinInto(*app, *successor, frozen, joined);
    for (const auto& [own, other] : app->takeOver(*successor))
        joinInto(*own, *other, frozen, joined);
    return joined;
}

// Enters names again, except where a title now belongs to another application's window.
void TimeTracker::enterNamesAgain(const FrozenIdentities& joined) const {
    TKUUIDManager& registry = m_services.store.registry;
    std::unordered_set<Identity> kept;
    for (const auto& [gone, identity] : joined)
        kept.insert(identity);
    const auto enter = [&](const TimeStoreNode& node) {
        if (node.branched() || !node.uuid() || !kept.contains(*node.uuid()))
            return;
        const QString key = node.registryKey(node.name());
        const auto known = registry.knownUUID(key);
        if (node.isApp() || (known && joined.contains(*known)))
            registry.setUUID(*node.uuid(), key);
    };
    for (const auto& app : m_tree.applications()) {
        enter(*app);
        for (const auto& window : app->windows())
            enter(*window);
        app->enterInRegistry(&kept);
    }
}

// `other` has already left the tree.
void TimeTracker::joinInto(TimeStoreNode& node, TimeStoreNode& other, FrozenTimer& frozen,
                           FrozenIdentities& joined) {
    node.correctTime(other.activeTime());
    if (const auto renamed = other.renamedNameStorage())
        node.setRenamedNameFormatted({{kRecordName, *renamed}});
    if (other.uuid() && node.uuid() && other.uuid() != node.uuid()) {
        frozen.remember(other.registryKey(other.name()), *other.uuid());
        joined.emplace(*other.uuid(), *node.uuid());
    }
    const auto self = node.shared_from_this();
    if (&other == activeStoreApp())
        m_activeStoreApp = std::static_pointer_cast<TimeStoreApp>(self);
    else if (&other == activeStoreWindow())
        m_activeStoreWindow = std::static_pointer_cast<TimeStoreWindow>(self);
}
