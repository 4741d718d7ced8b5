// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"
#include "Classes/store/TimeStoreCategory.h"

#include <unordered_map>

// The nodes that show projects. Those of records with an identity are kept and found again; the kept only grow.
class ProjectNodes {
public:
    // Outlives the nodes.
    explicit ProjectNodes(TimeStoreServices& services)
        : m_services(services) {}

    // Named with the record's label and not filled: that is TimeTracker::updateTimeStoreCategory with the record's
    // flattenedMembers(). A fresh one at every call for a record without an identity. Never null.
    std::shared_ptr<TimeStoreCategory> timeStoreCategoryForProjectDict(const ProjectRecord& record);

private:
    TimeStoreServices& m_services;
    std::unordered_map<Identity, std::shared_ptr<TimeStoreCategory>> m_nodes;
};
