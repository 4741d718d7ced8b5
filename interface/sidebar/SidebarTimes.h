// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"
#include "Classes/report/RangeAnswer.h"

class ListOptions;
class ProjectListModel;

// The times in the sidebar: of all timers, of each project, and of what belongs to none, as the search leaves them.
// Which timers count is found only when timers, projects or the search have changed; between that, a sum is made once a
// second, and none while nobody sees it. Main thread only.
class SidebarTimes {
public:
    // Everything outlives the times.
    struct Ground {
        TimeTracker& tracker;
        ProjectList& projects;
        ProjectListModel& rows;
        const ListOptions& options;
        // Whether the user can see the sidebar beside the timers.
        std::function<bool()> isSeen;
        // The text that is searched for, and the seconds that a timer must have to be found.
        std::function<QString()> search;
        std::function<float()> cutoff;
        // What belongs to no project is something else now.
        std::function<void()> restChanged;
    };

    explicit SidebarTimes(Ground ground);

    // Which timers count may have changed.
    void forgetRows() { m_areRowsKnown = false; }
    // Called at every tick.
    void refresh();
    // Finds what belongs to no project.
    void findRest();

    // The same of a range of the history, whatever the project. Shown until the next refresh().
    void showRange(const RangeAnswer& answer);
    // Shows no times.
    void clear();

private:
    void findRows();
    Seconds ofAll() const;

    const Ground m_ground;
    bool m_areRowsKnown = false;
    std::uint64_t m_changes = 0;
    double m_second = -1;
    // What is found among all timers; absent while nothing is searched.
    std::optional<TimeStoreItem::Children> m_found;
    std::vector<TimeStoreItem::Children> m_ofProjects;
    TimeStoreItem::Children m_ofNone;
    Subscription m_projectChanges;
    Subscription m_timerChanges;
};
