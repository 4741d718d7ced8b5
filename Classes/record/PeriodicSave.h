// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/BackgroundMove.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/RunLoop.h"

#include <QDateTime>

#include <array>
#include <vector>

class TimeDatabase;
class TimeTracker;
struct TimeStoreServices;

// Archives all timers at a time of day on chosen weekdays, under the date of the day that is due, and clears them. The
// settings say when, where and in which form. A chosen day that was slept through is made up for, whatever day it is by
// then. Nothing that has been archived is replaced. Main thread only.
class PeriodicSave {
public:
    // The buttons by which weekdays are chosen, from the left.
    using Segments = std::array<bool, 7>;

    // `didClear` is called after the timers were cleared. Everything must outlive this.
    PeriodicSave(TimeTracker& tracker, TimeDatabase& database, TimeStoreServices& services,
                 UserDefaults& defaults, const Clock& clock, std::function<void()> didClear,
                 BackgroundMove::Background background = BackgroundMove::onThread);
    ~PeriodicSave();

    // Plans anew, or nothing if the settings want none. A day whose time has come before that is not passed over.
    void updatedSaveTimerPeriodically();
    // For whenever any setting may have changed: plans anew if that is one that the plan stands on.
    void settingsChanged();
    // When the next day is looked at; absent while nothing is planned.
    std::optional<Date> nextFiring() const;

    // Where archives go, with "~" expanded.
    QString folder() const;

    // Archives and clears if today is one of the weekdays.
    void performPeriodicSave();
    // Archives and clears. A folder of the user's choice may take its time: until the archive has been moved there, and
    // as long as it cannot be, it is kept beside the main store, which the user is told. The timers are cleared even if nothing
    // could be written.
    void doPeriodicSave();
    // The same, named after the day that was due.
    void doPeriodicSave(QDate due);

    // Bit d of the setting is the weekday d, from 0 for Sunday. Showing the setting selects button i for bit i.
    Segments selectProperPeriodicDaysOfWeek() const;
    // Storing reads them the other way round: button i is bit 6 - i. Plans anew.
    void setPeriodicDaysOfWeek(const Segments& selected);

private:
    // Each day at a time of day, and some minutes later: a first firing is whole hours from when it was planned.
    struct Plan {
        Date begins(QDate day) const;
        Date firing(QDate day) const { return begins(day) + minutes; }

        QTime timeOfDay;
        std::chrono::milliseconds minutes;
        // Days before this one are settled.
        QDate next;
    };

    Plan planFrom(Date now) const;
    bool isChosen(QDate day) const;
    void arm();
    void fire();
    // Settles all days that are due; answers the first of them that is chosen.
    std::optional<QDate> takeDue(Date now);
    // Whether the wall clock has been set, by days, since it was last looked at.
    bool wasClockSetByDays() const;
    void archive(const QString& name);
    void archiveAs(const QString& name, const QString& extension);
    void moveLater(const QString& kept, const QString& path);
    // As the extension says. The main store's name is refused.
    Outcome write(const QString& path);
    void wasMoved(const QString& kept, const QString& path, const Outcome& moved);
    // The folder answers again: what is kept goes there too.
    void moveKept();
    // What the user has taken away himself is kept no more.
    void forgetWhatIsGone();
    void tellKept();
    void logKept(const QString& kept, const QString& why);
    void tellLost(const QString& name, const QString& why);

    TimeTracker& m_tracker;
    TimeDatabase& m_database;
    UserDefaults& m_defaults;
    const Clock& m_clock;
    TimeStoreServices& m_services;
    std::function<void()> m_didClear;
    BackgroundMove m_moves;
    // Archives that lie beside the main store, and where they belong.
    std::vector<std::pair<QString, QString>> m_kept;
    // The settings by which was planned.
    std::pair<bool, PropertyListValue> m_plannedBy;
    std::optional<Plan> m_plan;
    // When the clocks were last looked at, by both.
    Date m_lookedAt;
    std::chrono::nanoseconds m_lookedAtSinceBoot{};
    std::unique_ptr<RunLoopTimer> m_timer;
};
