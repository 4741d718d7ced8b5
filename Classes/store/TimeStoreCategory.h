// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreNode.h"

#include <mutex>

// Shows one project: its children are the tracker's own nodes for the project's members, narrowed to those
// that match a search text. Its time is the sum of theirs, computed at each request. It keeps its children
// alive; all views of the project share this node. Main thread only.
class TimeStoreCategory : public TimeStoreNode {
public:
    // Shared and never changed in place, so the same pointer means the same children. Null means empty.
    using List = std::shared_ptr<const Children>;

    // A given identity is entered in the registry for the name; the node then has the identity that the
    // registry answers.
    TimeStoreCategory(TimeStoreServices& services, const PropertyListValue& name,
                      const std::optional<Identity>& uuid = std::nullopt);

    // Breaks the contract: to rename a project, change its record, which makes a new node.
    void setName(const PropertyListValue& name) override;

    // Replaces the children. Does nothing, and announces nothing, if it is the list it already has. From now
    // on every change of a child's activeTimeString is announced as its own.
    virtual void setChildren(List children);
    // The children that match the search; all of them without a search. Never absent.
    std::optional<Children> children() const override;
    bool isLeaf() const override { return shown().empty(); }

    // Narrows the children; absent or empty shows all. Setting an equal text changes nothing, but absent is
    // never equal to anything.
    void setSearchString(const std::optional<QString>& searchString);
    // Searches the children anew. Announces a change of `children`, and holds the lock while it does.
    void refreshSearch();

    // Seconds, of the children shown. Summed in single precision: 16,777,216 s and 1 s make 16,777,216 s.
    Seconds activeTime() const override;

    // Compares by name, while `hash` uses the identity. So nodes that are equal may have different hashes.
    virtual bool isEqual(const TimeStoreItem& other) const;
    std::size_t hash() const;

protected:
    // For nodes of a special kind. Asks the registry for the identity of the name and enters nothing.
    TimeStoreCategory(TimeStoreServices& services, Kind kind, const PropertyListValue& name);

    // All children, with or without a search.
    const Children& allChildren() const;

private:
    const Children& shown() const { return m_searchResult ? *m_searchResult : allChildren(); }

    void memberTimeChanged();

    List m_children;
    std::optional<QString> m_searchString;
    // The children that match; absent without a search.
    List m_searchResult;
    std::recursive_mutex m_lock;
    std::vector<Subscription> m_memberTimes;
};
