// SPDX-License-Identifier: MIT
#include "Classes/projects/ReverseProjectCache.h"

#include <algorithm>

ReverseProjectCache::ReverseProjectCache(const std::vector<std::shared_ptr<ProjectRecord>>& projects) {
    for (const auto& project : projects)
        if (const int tag = project->colorTag(); tag != 0)
            for (const Identity& member : project->members())
                m_entries.push_back({member, tag});
    std::sort(m_entries.begin(), m_entries.end());
    m_entries.erase(std::unique(m_entries.begin(), m_entries.end()), m_entries.end());
}

ColorTags ReverseProjectCache::tags(const Identity& timer) const {
    ColorTags tags;
    for (auto entry = std::ranges::lower_bound(m_entries, timer, {}, &Entry::timer);
         entry != m_entries.end() && entry->timer == timer; ++entry)
        tags.append(entry->tag);
    return tags;
}
