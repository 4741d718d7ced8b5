// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"
#include "interface/outline/TKTableLabelCell.h"

#include <functional>

// Says what the cell of the "Program" column shows for a row.
class ProgramCell {
public:
    struct Sources {
        // Whether the outline shows a project rather than all timers.
        std::function<bool()> isProjectShown;
        // The colours of the projects that hold a timer.
        std::function<ColorTags(const Identity&)> tags;
        // The top-level rows of the outline of all timers.
        std::function<TimeStoreItem::Children()> applications;
    };

    explicit ProgramCell(Sources sources)
        : m_sources(std::move(sources)) {}

    // `isTopLevel`: the row is not below another one.
    TKTableLabelCell cell(TimeStoreItem& item, bool isTopLevel) const;
    // Whether the row is shown as frozen: its timer is frozen or, in a project, its application is.
    bool isFrozen(TimeStoreItem& item, bool isTopLevel) const;
    // What the cell shows by pictures, in words: “frozen”, and the colours.
    QStringList spokenMarks(TimeStoreItem& item, bool isTopLevel) const;

private:
    Sources m_sources;
};
