// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"

#include <QVarLengthArray>

#include <memory>
#include <vector>

// Colour tags in ascending order, each once.
using ColorTags = QVarLengthArray<int, 6>;

// The colours of each timer's projects. It is replaced as a whole and never changed, so painting can go on
// with the one it started with.
class ReverseProjectCache {
public:
    ReverseProjectCache() = default;
    // Projects without a colour add nothing; neither do the members of nested records.
    explicit ReverseProjectCache(const std::vector<std::shared_ptr<ProjectRecord>>& projects);

    // Empty for a timer that is in no coloured project.
    ColorTags tags(const Identity& timer) const;
    bool isEmpty() const { return m_entries.empty(); }

private:
    struct Entry {
        Identity timer;
        int tag;

        friend bool operator==(const Entry&, const Entry&) = default;
        friend bool operator<(const Entry& a, const Entry& b) {
            return a.timer == b.timer ? a.tag < b.tag : a.timer < b.timer;
        }
    };

    // Sorted, each once. Built in one piece, because every change of a colour builds it anew.
    std::vector<Entry> m_entries;
};
