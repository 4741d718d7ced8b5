// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"
#include "Classes/projects/TimersByProject.h"
#include "Classes/report/RangeAnswer.h"

class ListOptions;
class ProjectListModel;

// The times in the sidebar: of all timers, of each project, and of what belongs to none, as the search leaves them.
// Which timers count is found only when timers, projects or the search have changed. Between that each row is told what
// it gets, and is summed up anew only when that makes another second; none is while nobody sees it. Main thread only.
class SidebarTimes : private StretchListener {
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
    struct Row {
        // Absent for all timers while nothing is searched.
        std::optional<TimeStoreItem::Children> timers;
        Seconds time = 0;
        // The one that is shown.
        std::optional<double> second = {};
    };
    // The rows that get the time now.
    struct Getting {
        std::weak_ptr<const TimeStoreApp> program;
        std::weak_ptr<const TimeStoreWindow> window;
        std::vector<std::size_t> rows;
    };

    void credited(const Stretch& stretch) override;
    void absent(Instant since, Instant noticed, Seconds booked) override;
    std::vector<std::size_t> rowsGetting(const Stretch& stretch) const;
    TimersByProject timers() const;
    void findRows();
    bool sumUp(Row& row) const;

    const Ground m_ground;
    bool m_areRowsKnown = false;
    std::uint64_t m_changes = 0;
    // As they stand in the sidebar; the last is what belongs to no project.
    std::vector<Row> m_rows;
    TimerTree::AppSet m_titled;
    std::optional<Getting> m_getting;
    Subscription m_stretches;
    Subscription m_projectChanges;
    Subscription m_timerChanges;
};
