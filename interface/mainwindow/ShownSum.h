// SPDX-License-Identifier: MIT
#pragma once

#include "interface/mainwindow/TimeSum.h"

#include <functional>
#include <optional>

class MainWindow;
class TimeStoreCategory;
class TimeTracker;

// The sum below the outline: of all timers or of the project that is shown, of what is selected, of what is found. Which
// rows count is found out when somebody says that they may be others, not at every tick.
class ShownSum {
public:
    // The project that is shown; null while all timers are.
    using Project = std::function<TimeStoreCategory*()>;

    // The tracker and the window outlive this.
    ShownSum(const TimeTracker& tracker, const MainWindow& window, Project project);

    // Other rows may count from now on.
    void forgetRows() { m_rows.reset(); }

    // Shows what has changed by a second or in kind; nothing while the window is not seen.
    void refresh();
    // The sum that `kind` asks for: 0 as shown, 1 of everything, 2 as shown, in words. With `outMode` the
    // bare time, without it a caption of two lines.
    QString text(int kind, SumMode* outMode) const;

private:
    struct Rows {
        // All that the tracker has.
        bool isTotal;
        SumMode mode;
        TimeStoreItem::Children rows;
    };

    Rows rowsToSum(int kind) const;
    Seconds timeOf(const Rows& rows) const;

    const TimeTracker& m_tracker;
    const MainWindow& m_window;
    Project m_project;
    // Of the sum that is shown; absent while that has to be found out anew.
    std::optional<Rows> m_rows;
    SumMode m_lastMode = SumMode::None;
    double m_lastSecond = -1;
};
