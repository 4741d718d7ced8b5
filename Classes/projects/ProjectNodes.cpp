// SPDX-License-Identifier: MIT
#include "Classes/projects/ProjectNodes.h"

std::shared_ptr<TimeStoreCategory>
ProjectNodes::timeStoreCategoryForProjectDict(const ProjectRecord& record) {
    const std::optional<Identity> uuid = record.uuid();
    if (uuid)
        if (const auto known = m_nodes.find(*uuid); known != m_nodes.end())
            return known->second;
    auto node = std::make_shared<TimeStoreCategory>(m_services, record.label(), uuid);
    if (uuid)
        m_nodes.insert_or_assign(*node->uuid(), node);
    return node;
}
