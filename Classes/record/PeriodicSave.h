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

// On chosen weekdays at a time of day, writes an archive of all timers, named after the day that was due, and
// clears them. The settings say when, where to and in which form. A chosen day on which the machine slept is
// made up for later, whatever weekday it is by then. Archives are never replaced. Main thread only.
class PeriodicSave {
public:
    // The buttons that choose weekdays, from the left.
    using Segments = std::array<bool, 7>;

    // `didClear` is called after the timers were cleared. Everything must outlive this.
    PeriodicSave(TimeTracker& tracker, TimeDatabase& database, TimeStoreServices& services,
                 UserDefaults& defaults, const Clock& clock, std::function<void()> didClear,
                 BackgroundMove::Background background = BackgroundMove::onThread);
    ~PeriodicSave();

    // Plans anew, or stops planning if the settings want no archives. A day that is already due is still
    // archived.
    void updatedSaveTimerPeriodically();
    // To be called when any setting may have changed: plans anew if the change concerns the plan.
    void settingsChanged();
    // When it is next checked whether a day is due; absent while nothing is planned.
    std::optional<Date> nextFiring() const;

    // Where archives go, with "~" expanded.
    QString folder() const;

    // Archives and clears if today is one of the chosen weekdays.
    void performPeriodicSave();
    // Archives and clears. The chosen folder may answer slowly: until the archive has been moved there, it is
    // kept beside the main store, and the user is told if the move fails. The timers are cleared even if
    // nothing could be written.
    void doPeriodicSave();
    // The same for the day that was due: it gives the archive its name.
    void doPeriodicSave(QDate due);

    // Weekday d, from 0 for Sunday, is bit d of the setting. To show the setting, bit i selects button i.
    Segments selectProperPeriodicDaysOfWeek() const;
    // To store it, the order is reversed: button i becomes bit 6 - i. Plans anew.
    void setPeriodicDaysOfWeek(const Segments& selected);

private:
    // A day begins at the set time of day; its check fires some minutes later. The minutes come from the
    // moment of planning, because the first check is whole hours away from it.
    struct Plan {
        Date begins(QDate day) const;
        Date firing(QDate day) const { return begins(day) + minutes; }

        QTime timeOfDay;
        std::chrono::milliseconds minutes;
        // Days before this one are done.
        QDate next;
    };

    Plan planFrom(Date now) const;
    bool isChosen(QDate day) const;
    void arm();
    void fire();
    // Marks all days that are due as done; answers the first chosen one among them.
    std::optional<QDate> takeDue(Date now);
    // Whether somebody has set the wall clock by days since it was last looked at.
    bool wasClockSetByDays() const;
    void archive(const QString& name);
    void archiveAs(const QString& name, const QString& extension);
    void moveLater(const QString& kept, const QString& path);
    // Writes the form that the file extension names. Refuses the name of the main store.
    Outcome write(const QString& path);
    void wasMoved(const QString& kept, const QString& path, const Outcome& moved);
    // The folder answers again: archives that are kept beside the main store are moved there.
    void moveKept();
    // Forgets kept archives that the user has taken away.
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
    // Archives that lie beside the main store, and where they are to go.
    std::vector<std::pair<QString, QString>> m_kept;
    // The settings that the plan was made from.
    std::pair<bool, PropertyListValue> m_plannedBy;
    std::optional<Plan> m_plan;
    // When this was last checked, on both clocks.
    Date m_lookedAt;
    std::chrono::nanoseconds m_lookedAtSinceBoot{};
    std::unique_ptr<RunLoopTimer> m_timer;
};
