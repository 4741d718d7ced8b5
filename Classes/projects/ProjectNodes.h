// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"
#include "Classes/store/TimeStoreCategory.h"

#include <unordered_map>

// The nodes that show projects. A record with an identity always gets the same node; these nodes are kept for
// good.
class ProjectNodes {
public:
    // `services` outlives the nodes.
    explicit ProjectNodes(TimeStoreServices& services)
        : m_services(services) {}

    // The node has the record's label and no children yet: TimeTracker::updateTimeStoreCategory() fills it
    // with the record's flattenedMembers(). A record without an identity gets a new node at every call. Never
    // null.
    std::shared_ptr<TimeStoreCategory> timeStoreCategoryForProjectDict(const ProjectRecord& record);

private:
    TimeStoreServices& m_services;
    std::unordered_map<Identity, std::shared_ptr<TimeStoreCategory>> m_nodes;
};
