// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"
#include "interface/outline/TKTableLabelCell.h"

#include <functional>

// The program that an application's timer counts, by the name that it has itself. A frozen timer has its date in the
// name, but is shown under the program's.
QString programOf(const TimeStoreItem& application);

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
        // Whether titles are shown without their program's name. Without it they are whole.
        std::function<bool()> hasShortTitles = {};
        // The application of a window; null if it has gone.
        std::function<std::shared_ptr<TimeStoreItem>(const TimeStoreNode& window)> programOf = {};
    };

    explicit ProgramCell(Sources sources)
        : m_sources(std::move(sources)) {}

    // `isTopLevel`: the row is not below another one.
    TKTableLabelCell cell(TimeStoreItem& item, bool isTopLevel) const;
    // The name that is shown. `above` is the timer of the row above this one, null for a top row.
    QString shownName(TimeStoreItem& item, TimeStoreItem* above) const;
    // Whether the row is shown as frozen: its timer is frozen or, in a project, its application is.
    bool isFrozen(TimeStoreItem& item, bool isTopLevel) const;
    // What the cell shows by pictures, in words: “frozen”, and the colours.
    QStringList spokenMarks(TimeStoreItem& item, bool isTopLevel) const;

private:
    Sources m_sources;
};
