// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/ProjectRecord.h"

#include <QVarLengthArray>

#include <memory>
#include <unordered_map>

// Colour tags in ascending order, each once.
using ColorTags = QVarLengthArray<int, 6>;

// Which colours the projects of a timer have. Replaced whole and never changed, so whoever draws holds on to the one
// it began with.
class ReverseProjectCache {
public:
    ReverseProjectCache() = default;
    // Projects without a colour give nothing, nor do the members of nested records.
    explicit ReverseProjectCache(const std::vector<std::shared_ptr<ProjectRecord>>& projects);

    // Empty for a timer that is in no coloured project.
    const ColorTags& tags(const Identity& timer) const;
    std::size_t size() const { return m_tags.size(); }

private:
    std::unordered_map<Identity, ColorTags> m_tags;
};
