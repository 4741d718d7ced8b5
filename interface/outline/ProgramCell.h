// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"
#include "interface/outline/TKTableLabelCell.h"

#include <functional>

// Answers what the "Program" column's cell shows of a row.
class ProgramCell {
public:
    struct Sources {
        // Whether the outline shows a project, and not all timers.
        std::function<bool()> isProjectShown;
        // The colours of the projects that hold a timer.
        std::function<ColorTags(const Identity&)> tags;
        // What the outline of all timers shows at its top.
        std::function<TimeStoreItem::Children()> applications;
    };

    explicit ProgramCell(Sources sources)
        : m_sources(std::move(sources)) {}

    // `isTopLevel` is whether the row lies beneath no other.
    TKTableLabelCell cell(TimeStoreItem& item, bool isTopLevel) const;
    // Whether the row is shown as frozen, because its timer is or, in a project, its application.
    bool isFrozen(TimeStoreItem& item, bool isTopLevel) const;

private:
    Sources m_sources;
};
