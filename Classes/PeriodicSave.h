// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/Clock.h"
#include "platform/foundation/RunLoop.h"
#include "platform/foundation/UserDefaults.h"

#include <array>

class TimeDatabase;
class TimeTracker;

// Archives all timers at a time of day on chosen weekdays, under the day's date, and clears them. The settings say when,
// where and in which form. Main thread only.
class PeriodicSave {
public:
    // The buttons by which weekdays are chosen, from the left.
    using Segments = std::array<bool, 7>;

    // `didClear` is called after the timers were cleared. Everything must outlive this.
    PeriodicSave(TimeTracker& tracker, TimeDatabase& database, UserDefaults& defaults, const Clock& clock,
                 RunLoop& runLoop, SystemLog& log, std::function<void()> didClear);

    // Plans anew, or nothing if the settings want none. For whenever they may have changed.
    void updatedSaveTimerPeriodically();
    // When the next day is looked at; absent while nothing is planned.
    std::optional<Date> nextFiring() const { return m_next; }

    // Where archives go, with "~" expanded.
    QString folder() const;

    // Archives and clears if today is one of the weekdays.
    void performPeriodicSave();
    // Archives and clears. What cannot be written where the user wants it is kept beside the main store, which the log
    // tells; the timers are cleared even if that fails.
    void doPeriodicSave();

    // Bit d of the setting is the weekday d, from 0 for Sunday. Showing the setting selects button i for bit i.
    Segments selectProperPeriodicDaysOfWeek() const;
    // Storing reads them the other way round: button i is bit 6 - i. Plans anew.
    void setPeriodicDaysOfWeek(const Segments& selected);

private:
    // In hours, 1 to 24: from now to the first firing.
    int hoursToFirstFiring() const;
    void arm();
    void fire();
    void archive(const QString& name);
    Outcome writeCsv(const QString& path);
    Outcome writeDatabase(const QString& path);

    TimeTracker& m_tracker;
    TimeDatabase& m_database;
    UserDefaults& m_defaults;
    const Clock& m_clock;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    std::function<void()> m_didClear;
    std::optional<Date> m_next;
    std::unique_ptr<RunLoopTimer> m_timer;
};
