// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"
#include "Classes/store/TimerReference.h"

#include <QHash>

#include <functional>
#include <unordered_set>

class TKUUIDManager;

// All timers: the applications in the order in which they came, each with its windows. For each name it knows
// which application is being counted on. It announces and credits nothing. Owned by value; main thread only.
class TimerTree {
public:
    using AppSet = std::vector<std::shared_ptr<TimeStoreApp>>;
    // Selects timers: `node` is `app` itself or one of its windows.
    using IsMeant = std::function<bool(const TimeStoreApp& app, const TimeStoreNode& node)>;

    const AppSet& applications() const { return m_applications; }
    // The application that is counted on under this name; null if there is none.
    std::shared_ptr<TimeStoreApp> named(const QString& name) const;

    // Adds it at the end; from now on its name means this application.
    void add(const std::shared_ptr<TimeStoreApp>& app);
    void putLast(const std::shared_ptr<TimeStoreApp>& app);
    // From now on the name means this application.
    void giveName(const QString& name, const std::shared_ptr<TimeStoreApp>& app) {
        m_named.insert(name, app);
    }
    // From now on the name means no application.
    void forgetName(const QString& name) { m_named.remove(name); }
    // From now on no name means this application.
    void forgetNames(const TimeStoreApp& app);
    void forgetAllNames() { m_named.clear(); }
    // Removes it from the list; its name keeps its meaning.
    void remove(const std::shared_ptr<TimeStoreApp>& app);
    // Removes and answers all, likewise.
    AppSet takeAll();
    // Removes what is selected: windows leave their applications; applications leave the tree, with their
    // names, and are answered.
    AppSet takeOut(const IsMeant& isMeant);

    // The identities of the applications, in order.
    std::vector<Identity> identities() const;
    // The timers of these identities: an application itself, or those of its windows that are in the set.
    // With `excluding`, windows of an application that is in the set are left out.
    TimeStoreItem::Children timersOf(const std::unordered_set<Identity>& childUUIDs,
                                     bool excludingIncludedChildren) const;
    std::unordered_set<Identity> identitiesOf(const IsMeant& isMeant) const;
    TimerReferences meant(const IsMeant& isMeant) const;
    // References to these timers, as far as they are in the tree and stand for themselves, by an identity.
    TimerReferences referencesTo(const TimeStoreItem::Children& items) const;
    static bool contains(const TimerReferences& timers, const TimeStoreApp& app, const TimeStoreNode& node);
    // The application that this timer is or belongs to. Null if it is not in the tree.
    std::shared_ptr<TimeStoreApp> applicationHolding(const TimeStoreNode& node) const;
    // The application that a record describes, by identity or else by name. Null if it is not in the tree.
    std::shared_ptr<TimeStoreApp> applicationOf(const PropertyListDictionary& record) const;
    // Null if it is not in the tree.
    std::shared_ptr<TimeStoreNode> timerOf(const TimerReference& timer) const;

    // Writes the list of applications of a database file, piece by piece.
    void write(PropertyListSink& sink) const;
    // The records of some timers. An application that is only there for its windows has no time in its
    // record.
    PropertyListArray recordsOf(const TimerReferences& timers) const;
    // Enters the timers of these identities in the registry under their names; with null, all timers.
    void enterInRegistry(TKUUIDManager& registry, const std::unordered_set<Identity>* identities) const;

private:
    AppSet m_applications;
    QHash<QString, std::shared_ptr<TimeStoreApp>> m_named;
};
