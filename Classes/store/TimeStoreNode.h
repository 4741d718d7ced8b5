// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"
#include "platform/foundation/observing/KeyValueObserving.h"
#include "platform/foundation/observing/NotificationCenter.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

class AccountTrouble;
class TKUUIDManager;

// The observable properties of a node.
inline constexpr ObservedKey kNameKey{"name"};
inline constexpr ObservedKey kRenamedNameKey{"renamedName"};
inline constexpr ObservedKey kRenamedNameFormattedKey{"renamedNameFormatted"};
inline constexpr ObservedKey kSortNameKey{"sortName"};
inline constexpr ObservedKey kActiveTimeStringKey{"activeTimeString"};
inline constexpr ObservedKey kChildrenKey{"children"};
inline constexpr ObservedKey kIsLeafKey{"isLeaf"};

// The entries of a node's record.
inline const QString kRecordName = QStringLiteral("Name");
inline const QString kRecordActiveTime = QStringLiteral("ActiveTime");
inline const QString kRecordUUID = QStringLiteral("UUID");
inline const QString kRecordBranched = QStringLiteral("Branched");
inline const QString kRecordRenamedName = QStringLiteral("Renamed Name");
// The second entry of `renamedNameFormatted`.
inline const QString kFormattedOriginal = QStringLiteral("Original");

// Asks the views of projects to build them anew. No object.
inline const QString kTicklogRefreshProjectsNotification =
    QStringLiteral("kTicklogRefreshProjectsNotification");

// The longest time that a timer can have: 10,000 years, to the second, because dates in files span the years
// 1 to 9999.
inline constexpr Seconds kLongestTime = 10'000 * 365.2425 * 86'400;

// What nodes use of the rest of the program. It outlives all nodes.
struct TimeStoreServices {
    TKUUIDManager& registry;
    NotificationCenter& notifications;
    RunLoop& runLoop;
    SystemLog& log;
    AccountTrouble& trouble;
};

// What all timers have in common. Time changes only by addTimeInterval(); the identity is fixed at
// construction and changes only by freezing.
class TimeStoreNode : public TimeStoreItem, public Observable {
public:
    // If `name` is absent or no text, the name is "". If the time is absent, negative or no number, it is 0;
    // it is never more than kLongestTime. The identity is the one that the registry has for the node's class
    // and name.
    explicit TimeStoreNode(TimeStoreServices& services, const PropertyListValue& name,
                           const PropertyListValue& timeSpent = 0.0);
    // From a record as dictionaryRepresentation() makes it. An identity in the record wins over the
    // registry's.
    TimeStoreNode(TimeStoreServices& services, const PropertyListDictionary& record);

    // The name of a node's class in registry keys.
    QString className() const;
    // The registry key of a node of this class called `name`.
    QString registryKey(const QString& name) const { return className() + name; }

    TimeStoreNode& node() override { return *this; }
    QString name() const override { return m_name.isNull() ? QLatin1String("") : m_name; }
    // The timer's own name, whatever the user calls it. All that is shown asks for renamedName() instead.
    QString displayName() const { return name(); }
    // Compare without copying a text, because many nodes are asked ten times a second.
    bool isNamed(const QString& text) const { return m_name == text; }
    bool isShownAs(const QString& text) const {
        return (m_renamedNameStorage.isNull() ? m_name : m_renamedNameStorage) == text;
    }
    // Whether the name shown contains a text, upper or lower case.
    bool matches(const QString& searchString) const;
    QString renamedName() const override {
        return m_renamedNameStorage.isNull() ? name() : m_renamedNameStorage;
    }
    PropertyListDictionary renamedNameFormatted() const override;
    void setRenamedNameFormatted(const PropertyListDictionary& record) override;
    bool renamedNameEditable() const override { return true; }
    QString sortName() const override { return renamedName(); }
    Seconds activeTime() const override { return m_activeTime; }
    QString activeTimeString() const override;
    std::optional<Identity> uuid() const override { return m_uuid; }
    bool branched() const override { return m_branched; }
    std::optional<Children> children() const override { return std::nullopt; }
    bool isLeaf() const override { return true; }
    bool isApp() const override { return m_kind == Kind::App; }
    std::shared_ptr<TimeStoreItem> prunedObjectForSearchString(const std::optional<QString>& searchString,
                                                               float cutoffTime) override;
    Seconds activeTimeForSearchString(const QString& searchString) const override;

    // Renames the timer itself. Absent counts as ""; any other value that is no text breaks the contract.
    // Before the change observers are told of name, renamedNameFormatted and renamedName; after it, in
    // reverse order.
    virtual void setName(const PropertyListValue& name);
    // The user's own name; absent when the timer is not renamed.
    std::optional<QString> renamedNameStorage() const;
    // Sets it and tells nobody; the user's own edits come by setRenamedNameFormatted().
    void setRenamedNameStorage(const std::optional<QString>& name);
    void setUuid(const std::optional<Identity>& uuid) { m_uuid = uuid; }
    void setBranched(bool branched) { m_branched = branched; }

    // Adds seconds, which may be negative, up to a total of kLongestTime, and tells observers of
    // activeTimeString. The tracker calls it when it credits a stretch of work; everybody else calls
    // correctTime().
    void addTimeInterval(Seconds seconds);
    // The same for time that is no work of this moment: it comes from another timer or goes to one, comes back
    // by undoing, or was found to be an absence.
    void correctTime(Seconds seconds) { addTimeInterval(seconds); }

    // Adds a window from its record. Nodes that cannot have children ignore it.
    virtual void addChildFromDictionary(const PropertyListDictionary& record);

    // The node's record, without its children.
    PropertyListDictionary dictionaryRepresentation() const;
    // Writes that record piece by piece.
    void writeRecord(PropertyListSink& sink) const;

    // "(name -> seconds)" and the like, for debugging.
    virtual QString description() const;

    QVariant valueForKey(ObservedKey key) const override;

protected:
    enum class Kind : unsigned char { Node, App, Window, Category, AppProxy };

    TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListValue& name,
                  const PropertyListValue& timeSpent);
    TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListDictionary& record);
    // From a record, but entered in the registry under the caller's key.
    TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListDictionary& record,
                  const QString& key);
    // With the caller's identity; the registry is neither asked nor changed.
    TimeStoreNode(TimeStoreServices& services, Kind kind, const PropertyListValue& name,
                  const PropertyListValue& timeSpent, const Identity& uuid);

    static QString classNameOf(Kind kind);
    TimeStoreServices& services() const { return m_services; }

private:
    TimeStoreServices& m_services;
    // Null until it is first set: until then there is no registry entry to move.
    QString m_name;
    // Null when not renamed.
    QString m_renamedNameStorage;
    Seconds m_activeTime = 0;
    std::optional<Identity> m_uuid;
    Kind m_kind;
    bool m_branched = false;
};
