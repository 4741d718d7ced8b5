// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStorePruneProxy.h"

std::shared_ptr<TimeStorePruneProxy>
TimeStorePruneProxy::prunedProxyForObject(std::shared_ptr<TimeStoreItem> object,
                                          std::optional<QString> searchString, float cutoffTime) {
    return std::make_shared<TimeStorePruneProxy>(std::move(object), std::move(searchString), cutoffTime);
}

TimeStorePruneProxy::TimeStorePruneProxy(std::shared_ptr<TimeStoreItem> object,
                                         std::optional<QString> searchString, float cutoffTime)
    : m_object(std::move(object))
    , m_searchString(std::move(searchString))
    , m_cutoffTime(cutoffTime) {}

std::optional<TimeStoreItem::Children> TimeStorePruneProxy::children() const {
    auto all = m_object->children();
    if (!all)
        return std::nullopt;
    // The child itself is kept, not its pruned form: a child that matches is shown whole.
    std::erase_if(*all, [&](const std::shared_ptr<TimeStoreItem>& child) {
        return !child->prunedObjectForSearchString(m_searchString, m_cutoffTime);
    });
    return all;
}
