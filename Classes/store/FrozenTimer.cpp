// SPDX-License-Identifier: MIT
#include "Classes/store/FrozenTimer.h"

#include "Classes/store/TimeStoreNode.h"

#include <algorithm>

FrozenTimer::FrozenTimer(const TimeStoreNode& timer, const FrozenTimer* again)
    : m_name(timer.name())
    , m_renamedName(timer.renamedNameStorage())
    , m_isApp(timer.isApp()) {
    if (!again)
        return;
    m_known = again->m_pairs;
    m_successors = again->m_successors;
}

Identity FrozenTimer::replace(const std::optional<Identity>& identity) {
    const auto known = std::ranges::find(m_known, identity, &Pair::before);
    const bool isKnown = identity && known != m_known.end();
    m_pairs.push_back({identity, isKnown ? known->after : Identity::brandNew()});
    // In an old account two windows may share an identity; from now on each has its own.
    if (isKnown)
        m_known.erase(known);
    return m_pairs.back().after;
}
