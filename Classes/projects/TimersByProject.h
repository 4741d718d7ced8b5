// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectRecord.h"
#include "Classes/store/TimerTree.h"

// To whom the timers belong: those of each project, and those of none. No timer is twice in one list, nor a window
// beside its application. All time is in one of the lists at least, except for what is left out. The lists keep their
// timers alive.
struct TimersByProject {
    using Projects = std::vector<std::shared_ptr<const ProjectRecord>>;
    using IsLeftOut = std::function<bool(const TimeStoreApp&)>;

    // Looks at each timer once. Applications that are left out are not among those of none.
    static TimersByProject find(const TimerTree::AppSet& applications, const Projects& projects,
                                const IsLeftOut& isLeftOut);

    // In the order of the projects; each the same as TimerTree::timersOf() answers for its members.
    std::vector<TimeStoreItem::Children> ofProjects;
    // Applications of no project; of those of which only windows are in projects, the other windows, and the time
    // that no window has.
    TimeStoreItem::Children ofNone;
    // Of these, too, only windows are in projects, but so far no time is in no window.
    TimerTree::AppSet titled;
};
