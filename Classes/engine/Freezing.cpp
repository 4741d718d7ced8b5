// SPDX-License-Identifier: MIT
#include "Classes/engine/Freezing.h"

#include "Classes/engine/CountedTimers.h"
#include "Classes/engine/TimeActivator.h"
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

// Which timers of the past follow when freezing an application, or a window of it, is undone. The application
// comes first: its windows are then found under the identity that it has again.
TimerMoves movesBy(const FrozenIdentities& joined, const TimeStoreApp& app) {
    TimerMoves moves;
    if (!app.uuid())
        return moves;
    for (const auto& [gone, kept] : joined)
        if (kept == app.uuid())
            moves.push_back({{gone, std::nullopt}, {kept, std::nullopt}});
    for (const auto& [gone, kept] : joined)
        if (kept != app.uuid())
            moves.push_back({{*app.uuid(), gone}, {*app.uuid(), kept}});
    return moves;
}

void add(TimerMoves& moves, const std::optional<Identity>& application, const FrozenTimer::Pair& window) {
    if (application && window.before)
        moves.push_back({{*application, *window.before}, {*application, window.after}});
}

} // namespace

FrozenTimer Freezing::freeze(TimeStoreNode& node) {
    FrozenTimer frozen(node);
    freeze(node, frozen);
    return frozen;
}

bool Freezing::freezeAgain(FrozenTimer& frozen) {
    const auto identity = frozen.own().before;
    if (!identity)
        return false;
    for (const auto& item : m_timers.tree().timersOf({*identity}, false)) {
        if (item->isApp() != frozen.isApp() || item->branched())
            continue;
        FrozenTimer again(item->node(), &frozen);
        freeze(item->node(), again);
        frozen = std::move(again);
        return true;
    }
    return false;
}

void Freezing::freeze(TimeStoreNode& node, FrozenTimer& frozen) {
    if (auto* app = dynamic_cast<TimeStoreApp*>(&node))
        freezeApplication(*app, frozen);
    else if (auto* window = dynamic_cast<TimeStoreWindow*>(&node))
        freezeWindow(*window, frozen);
}

void Freezing::freezeWindow(TimeStoreWindow& window, FrozenTimer& frozen) {
    // The table may hold the last reference but this one, and drops it while the window changes its key.
    const auto alive = window.shared_from_this();
    const QString oldName = window.name();
    const auto holder = m_timers.tree().applicationHolding(window);
    const std::optional<Identity> known = tellApart(window);
    window.setBranched(true);
    window.setName(frozenName(oldName, m_clock.now()));
    window.setRenamedNameFormatted({{kRecordName, oldName}});
    window.setUuid(frozen.replace(window.uuid()));
    // From now on the window on the screen belongs to the fresh timer.
    window.setWindowElement(WindowElement());
    post({known, *window.uuid()});
    TimerMoves moves;
    add(moves, holder ? holder->uuid() : std::nullopt, frozen.own());
    m_timers.services().notifications.post(kTicklogMoveTimersNotification, std::move(moves));
    bringSuccessorsBack(frozen);
    m_timers.forgetWindow();
    m_source.mainWindowDidChange();
}

void Freezing::freezeApplication(TimeStoreApp& app, FrozenTimer& frozen) {
    const auto alive = std::static_pointer_cast<TimeStoreApp>(app.shared_from_this());
    const QString oldName = app.name();
    const bool wasCurrent = alive == m_timers.app();
    m_timers.tree().forgetName(oldName);
    app.setName(frozenName(oldName, m_clock.now()));
    app.setRenamedNameFormatted({{kRecordName, oldName}});
    app.setBranched(true);
    const Identity newIdentity = frozen.replace(app.uuid());
    TimerMoves moves;
    {
        const ChangeAnnouncement announcement = m_timers.changeOfSet();
        const std::lock_guard guard(m_timers.lock());
        m_timers.tree().remove(alive);
        app.setUuid(newIdentity);
        for (const auto& window : app.windows()) {
            const std::optional<Identity> known = tellApart(*window);
            window->setUuid(frozen.replace(window->uuid()));
            post({known, *window->uuid()});
            add(moves, frozen.own().before, frozen.windows().back());
        }
        m_timers.tree().putLast(alive);
    }
    post(frozen.own());
    if (const auto& old = frozen.own().before)
        moves.push_back({{*old, std::nullopt}, {newIdentity, std::nullopt}});
    m_timers.services().notifications.post(kTicklogMoveTimersNotification, std::move(moves));
    bringSuccessorsBack(frozen);
    refreshProjects({{kInfoCurrentApp, wasCurrent ? 1 : 0}, {kInfoOldName, oldName}});
}

// Answers the identity by which projects know this window. If another application's window shares it, this
// window gets one of its own first, so that projects keep the other window.
std::optional<Identity> Freezing::tellApart(const TimeStoreWindow& window) {
    const std::optional<Identity> shared = window.uuid();
    const auto goesByIt = [&](const std::shared_ptr<TimeStoreWindow>& other) {
        return other.get() != &window && other->uuid() == shared;
    };
    const auto holdsSuch = [&](const std::shared_ptr<TimeStoreApp>& app) {
        return std::ranges::any_of(app->windows(), goesByIt);
    };
    if (!shared || std::ranges::none_of(m_timers.tree().applications(), holdsSuch))
        return shared;
    const Identity own = Identity::brandNew();
    m_timers.services().notifications.post(kTicklogSucceedNodeNotification, Successions{{*shared, own}});
    return own;
}

void Freezing::post(const FrozenTimer::Pair& identities) {
    FrozenIdentities frozen;
    if (identities.before)
        frozen.emplace(*identities.before, identities.after);
    m_timers.services().notifications.post(kTicklogBranchNodeNotification, std::move(frozen));
}

void Freezing::bringSuccessorsBack(const FrozenTimer& frozen) const {
    if (frozen.successors().empty())
        return;
    // This may save the projects, and saving removes unused names from the registry. So the names are entered
    // after it.
    m_timers.services().notifications.post(kTicklogRefreshProjectsNotification);
    for (const auto& [key, identity] : frozen.successors())
        m_timers.services().registry.setUUID(identity, key);
}

void Freezing::refreshProjects(const PropertyListDictionary& info) {
    if (info.value(kInfoCurrentApp).toBool()) {
        m_timers.setCurrentApp(info.value(kInfoOldName).toString());
        m_timers.forgetWindow();
        m_source.mainWindowDidChange();
    }
    m_timers.services().notifications.post(kTicklogRefreshProjectsNotification);
}

bool Freezing::undo(FrozenTimer& frozen) {
    std::optional<FrozenIdentities> joined;
    TimerMoves moves;
    for (const auto& app : TimerTree::AppSet(m_timers.tree().applications())) {
        if (frozen.isApp() && app->uuid() == frozen.own().after)
            joined = undoApplication(app, frozen);
        else if (!frozen.isApp())
            if (const auto window = app->windowOfIdentity(frozen.own().after))
                joined = undoWindow(*window, *app, frozen);
        if (!joined)
            continue;
        moves = movesBy(*joined, *app);
        break;
    }
    if (!joined)
        return false;
    enterNamesAgain(*joined);
    m_timers.services().notifications.post(kTicklogUnbranchNodeNotification, *std::move(joined));
    m_timers.services().notifications.post(kTicklogMoveTimersNotification, std::move(moves));
    // The search result may still hold timers that no longer exist.
    m_timers.reloadSearchFiltering();
    m_timers.services().notifications.post(kTicklogRefreshProjectsNotification);
    return true;
}

FrozenIdentities Freezing::undoWindow(TimeStoreWindow& window, TimeStoreApp& app, FrozenTimer& frozen) {
    const std::lock_guard guard(m_timers.lock());
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

FrozenIdentities Freezing::undoApplication(const std::shared_ptr<TimeStoreApp>& app, FrozenTimer& frozen) {
    const std::lock_guard guard(m_timers.lock());
    const ChangeAnnouncement announcement = m_timers.changeOfSet();
    FrozenIdentities joined;
    m_timers.tree().forgetNames(*app);
    const auto successor = m_timers.tree().named(frozen.name());
    nameAgain(*app, frozen);
    takeIdentityBack(*app, frozen.own(), joined);
    for (const FrozenTimer::Pair& pair : frozen.windows())
        if (const auto window = app->windowOfIdentity(pair.after))
            takeIdentityBack(*window, pair, joined);
    m_timers.tree().giveName(frozen.name(), app);
    if (!successor)
        return joined;
    m_timers.tree().remove(successor);
    joinInto(*app, *successor, frozen, joined);
    for (const auto& [own, other] : app->takeOver(*successor))
        joinInto(*own, *other, frozen, joined);
    return joined;
}

// Enters names again, except where a title now belongs to another application's window.
void Freezing::enterNamesAgain(const FrozenIdentities& joined) const {
    TKUUIDManager& registry = m_timers.services().registry;
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
    for (const auto& app : m_timers.tree().applications()) {
        enter(*app);
        for (const auto& window : app->windows())
            enter(*window);
        app->enterInRegistry(&kept);
    }
}

// `other` has already left the tree.
void Freezing::joinInto(TimeStoreNode& node, TimeStoreNode& other, FrozenTimer& frozen,
                        FrozenIdentities& joined) {
    m_timers.correctTime(node, other.activeTime());
    if (const auto renamed = other.renamedNameStorage())
        node.setRenamedNameFormatted({{kRecordName, *renamed}});
    if (other.uuid() && node.uuid() && other.uuid() != node.uuid()) {
        frozen.remember(other.registryKey(other.name()), *other.uuid());
        joined.emplace(*other.uuid(), *node.uuid());
    }
    m_timers.passOn(other, node);
}
