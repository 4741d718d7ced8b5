// SPDX-License-Identifier: MIT
#include "Classes/ReverseProjectCache.h"

#include <algorithm>

ReverseProjectCache::ReverseProjectCache(const std::vector<std::shared_ptr<ProjectRecord>>& projects) {
    for (const auto& project : projects) {
        const int tag = project->colorTag();
        if (tag == 0)
            continue;
        for (const Identity& member : project->members()) {
            ColorTags& tags = m_tags[member];
            const auto place = std::lower_bound(tags.begin(), tags.end(), tag);
            if (place == tags.end() || *place != tag)
                tags.insert(place, tag);
        }
    }
}

const ColorTags& ReverseProjectCache::tags(const Identity& timer) const {
    static const ColorTags kNone;
    const auto found = m_tags.find(timer);
    return found == m_tags.end() ? kNone : found->second;
}
