// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreCategory.h"

inline constexpr ObservedKey kAppKey{"app"};

// Stands for one application in the display of a project. The last of its children is `app`, which answers
// most questions. Projects show their members directly and make none of these; rows, cells and drags take it
// like any other timer.
class TimeStoreAppProxy : public TimeStoreCategory {
public:
    TimeStoreAppProxy(TimeStoreServices& services, const PropertyListValue& name, const Children& children);

    // The keys that depend on others: "children" changes with "app.children", "isLeaf" with "app.isLeaf".
    static QStringList keyPathsForValuesAffectingValueForKey(ObservedKey key);

    // Null when there are no children.
    std::shared_ptr<TimeStoreItem> app() const;

    // Leaves out proxies among the children. Announces a change of `app`, and so of all that depends on it.
    void setChildren(List children) override;
    // Its own children if there are several, otherwise those of `app`. A search narrows neither.
    std::optional<Children> children() const override;
    // False with several children, otherwise what `app` answers; true without any.
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
