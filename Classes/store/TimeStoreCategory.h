// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreNode.h"

#include <mutex>

// The face of one project: a node whose children are the tracker's own nodes of the project's members, narrowed to
// those that match a search text. Its time is the sum of theirs, computed at each request. It keeps its children
// alive; whoever shows the project shares the node. Main thread only.
class TimeStoreCategory : public TimeStoreNode {
public:
    // The same object handed in twice is the same list, so it is shared and never changed in place. Null is empty.
    using List = std::shared_ptr<const Children>;

    // A given identity is entered in the registry for the name, and the node takes what the registry answers.
    TimeStoreCategory(TimeStoreServices& services, const PropertyListValue& name,
                      const std::optional<Identity>& uuid = std::nullopt);

    // A project is renamed in its record, which makes a new node: here it is a broken contract.
    void setName(const PropertyListValue& name) override;

    // Replaces the children. Nothing happens, and nothing is announced, when it is the list it already has. The
    // children's activeTimeString is observed from now on, and each of their changes announced as its own.
    virtual void setChildren(List children);
    // What matches the search, or all children without one. Never absent.
    std::optional<Children> children() const override;
    bool isLeaf() const override { return shown().empty(); }

    // Narrows the children; absent or empty, all are shown. Setting an equal text is no change, but absent is never
    // equal to anything.
    void setSearchString(const std::optional<QString>& searchString);
    // Searches the children anew. Announces a change of `children`, all of it under the lock.
    void refreshSearch();

    // Seconds, of the children shown. Summed in single precision: 16,777,216 s and 1 s are 16,777,216 s.
    Seconds activeTime() const override;

    // By name; `hash` by identity. Nodes that are equal may therefore have different hashes.
    virtual bool isEqual(const TimeStoreItem& other) const;
    std::size_t hash() const;

protected:
    // For nodes of a kind of their own. The registry is asked for the identity of the name and told nothing.
    TimeStoreCategory(TimeStoreServices& services, Kind kind, const PropertyListValue& name);

    // All children, whatever is searched for.
    const Children& allChildren() const;

private:
    const Children& shown() const { return m_searchResult ? *m_searchResult : allChildren(); }

    void memberTimeChanged();

    List m_children;
    std::optional<QString> m_searchString;
    // What is left of the children; absent while nothing is searched for.
    List m_searchResult;
    std::recursive_mutex m_lock;
    std::vector<Subscription> m_memberTimes;
};
