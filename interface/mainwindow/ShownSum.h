// SPDX-License-Identifier: MIT
#pragma once

#include "interface/mainwindow/TimeSum.h"

#include <functional>
#include <optional>

class MainWindow;
class TimeStoreCategory;
class TimeTracker;

// The sum below the outline: of all timers, of the project that is shown, of the selected rows, or of the
// found rows. Which rows count is determined when forgetRows() says that they may have changed, not at every
// tick.
class ShownSum {
public:
    // What is shown.
    struct Project {
        // Null while all timers are.
        std::function<TimeStoreCategory*()> node;
        // Whether it is what belongs to no project.
        std::function<bool()> isRest;
    };

    // The tracker and the window outlive this.
    ShownSum(const TimeTracker& tracker, const MainWindow& window, Project project);

    // Which rows count may have changed.
    void forgetRows() { m_rows.reset(); }

    // Shows the sum if it has changed by a second or is of another kind. Does nothing while the window cannot
    // be seen.
    void refresh();
    // For how long the sum that is shown stays the same second, if it goes on growing; absent if it does not grow.
    std::optional<Seconds> untilTurn() const;
    // `kind` 0 asks for the sum as shown, 1 for the sum of all timers, 2 for the sum as shown, in words. With
    // `outMode` answers the time alone, without it a caption of two lines.
    QString text(int kind, SumMode* outMode) const;

private:
    struct Rows {
        // Whether these are all timers of the tracker.
        bool isTotal;
        SumMode mode;
        TimeStoreItem::Children rows;
    };

    Rows rowsToSum(int kind) const;
    Seconds timeOf(const Rows& rows) const;
    QStringList leftOutOfTotal() const;
    QString caption(SumMode mode) const;

    const TimeTracker& m_tracker;
    const MainWindow& m_window;
    Project m_project;
    // The rows of the sum that is shown; absent when they must be determined again.
    std::optional<Rows> m_rows;
    SumMode m_lastMode = SumMode::None;
    QString m_lastCaption;
    double m_lastSecond = -1;
    Seconds m_lastTime = 0;
    // Whether it grew when the program in front last did; true as long as that is not known.
    bool m_isGrowing = true;
    // That program, only to be compared, and its time then.
    const void* m_counted = nullptr;
    Seconds m_lastCounted = 0;
};
