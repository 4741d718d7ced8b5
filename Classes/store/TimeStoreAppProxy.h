// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreCategory.h"

inline constexpr ObservedKey kAppKey{"app"};

// Stands for one application inside the display of a project. The last of its children is `app`, which answers most
// questions. A project shows its members themselves, so nothing in the program makes one; rows, cells and drags know what to do
// with it all the same.
class TimeStoreAppProxy : public TimeStoreCategory {
public:
    TimeStoreAppProxy(TimeStoreServices& services, const PropertyListValue& name, const Children& children);

    // The keys whose changes are changes of `key` too: "app.children" for "children", "app.isLeaf" for "isLeaf".
    static QStringList keyPathsForValuesAffectingValueForKey(ObservedKey key);

    // Null when there are no children.
    std::shared_ptr<TimeStoreItem> app() const;

    // Proxies among the children are left out. Announces a change of `app`, and so of what depends on it.
    void setChildren(List children) override;
    // Its own when there is more than one, otherwise those of `app`; a search narrows neither.
    std::optional<Children> children() const override;
    // With more than one child false, otherwise what `app` answers; true without one.
    bool isLeaf() const override;
    bool isApp() const override { return true; }

    PropertyListDictionary renamedNameFormatted() const override;
    void setRenamedNameFormatted(const PropertyListDictionary& record) override;
    bool branched() const override;
    std::optional<Identity> uuid() const override;
    // Seconds, of all children, in double precision.
    Seconds activeTime() const override;

    // Compares the name of `app` with the other's own name.
    bool isEqual(const TimeStoreItem& other) const override;
    // "AppProxy: (…)"
    QString description() const override;

private:
    void forward(ObservedKey key, ChangePhase phase);
    void followApp();

    std::vector<Subscription> m_appChanges;
};
