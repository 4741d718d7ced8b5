// SPDX-License-Identifier: MIT
#include "Classes/ReverseProjectCache.h"

#include <algorithm>

ReverseProjectCache::ReverseProjectCache(const std::vector<std::shared_ptr<ProjectRecord>>& projects) {
    for (const auto& project : projects)
        if (const int tag = project->colorTag(); tag != 0)
            for (const Identity& member : project->members())
                m_entries.push_back({member, tag});
    std::ranges::sort(m_entries);
    const auto repeated = std::ranges::unique(m_entries);
    m_entries.erase(repeated.begin(), repeated.end());
}

ColorTags ReverseProjectCache::tags(const Identity& timer) const {
    ColorTags tags;
    for (const Entry& entry : std::ranges::equal_range(m_entries, timer, {}, &Entry::timer))
        tags.append(entry.tag);
    return tags;
}
