// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"
#include "Classes/store/TimerReference.h"

#include <QHash>

#include <functional>
#include <unordered_set>

class TKUUIDManager;

// All timers: the applications in the order in which they came, each with its windows, and which of them is counted on under
// a name. It announces nothing and credits nothing. A plain value of its owner; main thread only.
class TimerTree {
public:
    using AppSet = std::vector<std::shared_ptr<TimeStoreApp>>;
    // Whether a timer is meant: an application, and itself or one of its windows.
    using IsMeant = std::function<bool(const TimeStoreApp& app, const TimeStoreNode& node)>;

    const AppSet& applications() const { return m_applications; }
    // The one that is counted on under a name; null without one.
    std::shared_ptr<TimeStoreApp> named(const QString& name) const;

    // Adds it as the last, and from now on it is the one of its name.
    void add(const std::shared_ptr<TimeStoreApp>& app);
    void putLast(const std::shared_ptr<TimeStoreApp>& app);
    // From now on it is the one of that name.
    void giveName(const QString& name, const std::shared_ptr<TimeStoreApp>& app) {
        m_named.insert(name, app);
    }
    // Nobody is counted on under that name any more.
    void forgetName(const QString& name) { m_named.remove(name); }
    // Under no name any more.
    void forgetNames(const TimeStoreApp& app);
    void forgetAllNames() { m_named.clear(); }
    // Its name stays.
    void remove(const std::shared_ptr<TimeStoreApp>& app);
    // The same for all.
    AppSet takeAll();
    // Applications that are meant leave the tree with their names, and are answered; windows leave their applications.
    AppSet takeOut(const IsMeant& isMeant);

    // Of the applications, in their order.
    std::vector<Identity> identities() const;
    // The timers of these identities: an application itself, or else those of its windows that are wanted. With
    // `excluding`, the windows of an application that is wanted are not wanted on their own.
    TimeStoreItem::Children timersOf(const std::unordered_set<Identity>& childUUIDs,
                                     bool excludingIncludedChildren) const;
    std::unordered_set<Identity> identitiesOf(const IsMeant& isMeant) const;
    TimerReferences meant(const IsMeant& isMeant) const;
    // Which timers these are, of those that are in the tree.
    TimerReferences referencesTo(const TimeStoreItem::Children& items) const;
    static bool contains(const TimerReferences& timers, const TimeStoreApp& app, const TimeStoreNode& node);
    // The application that a timer is or is in. Null for one that is not there.
    std::shared_ptr<TimeStoreApp> applicationHolding(const TimeStoreNode& node) const;
    // The application that a record is of, by identity or else by name. Null for one that is not there.
    std::shared_ptr<TimeStoreApp> applicationOf(const PropertyListDictionary& record) const;
    // Null for one that is not there.
    std::shared_ptr<TimeStoreNode> timerOf(const TimerReference& timer) const;

    // The entries of a database file, piece by piece.
    void write(PropertyListSink& sink) const;
    // Those of some timers. An application that is not meant itself is told without its time.
    PropertyListArray recordsOf(const TimerReferences& timers) const;
    // Enters the names of these identities, of all without any.
    void enterInRegistry(TKUUIDManager& registry, const std::unordered_set<Identity>* identities) const;

private:
    AppSet m_applications;
    QHash<QString, std::shared_ptr<TimeStoreApp>> m_named;
};
