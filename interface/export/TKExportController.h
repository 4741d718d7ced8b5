// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/PeriodicSave.h"
#include "Classes/store/TimeStoreItem.h"
#include "platform/Platform.h"
#include "platform/foundation/observing/KeyValueObserving.h"

class Alerts;

// Where the scheduled archive goes, as the setting has it.
inline constexpr ObservedKey kPeriodicSaveDirectoryKey{"periodicSaveDirectory"};

// Writes timers into files for other programs, when the user asks for it and by itself at the chosen times. The
// settings of the scheduled archive are stored through it. Main thread only.
class TKExportController : public Observable {
public:
    // Sets the scheduled archive up. `didClear` is called after it has cleared the timers. All must outlive this.
    TKExportController(TimeTracker& tracker, TimeDatabase& database, TimeStoreServices& services,
                       const Platform& platform, Alerts& alerts, std::function<void()> didClear);

    // The settings of the scheduled archive are other ones.
    void updatedSaveTimerPeriodically() { m_periodicSave.updatedSaveTimerPeriodically(); }

    void performPeriodicSave() { m_periodicSave.performPeriodicSave(); }

    void doPeriodicSave() { m_periodicSave.doPeriodicSave(); }

    // Stores what is selected in the weekday control, and applies it.
    void setPeriodicDaysOfWeek(const PeriodicSave::Segments& selected) {
        m_periodicSave.setPeriodicDaysOfWeek(selected);
    }

    // What is to be selected in the weekday control.
    PeriodicSave::Segments selectProperPeriodicDaysOfWeek() const {
        return m_periodicSave.selectProperPeriodicDaysOfWeek();
    }

    // The folder of the archives, as the setting has it: "~" is not expanded.
    QString periodicSaveDirectory() const;
    // Lets the user choose that folder.
    void setPeriodicSaveDirectory();

    // Export what the search and the cut-off leave of all timers, and all of them, to a file the user chooses. The panel
    // says `title`.
    void exportShownToCSV(const QString& title);
    void exportAllToCSV();
    // The panel proposes `name`. The sum in the table's head is of all timers, unless it is told.
    void exportSet(const TimeStoreItem::Children& timers, const QString& title, const QString& name,
                   const std::optional<Seconds>& total = std::nullopt);
    // A failure goes to the log alone.
    void exportCSVSetToFilename(const TimeStoreItem::Children& timers, const QString& path,
                                const std::optional<Seconds>& total = std::nullopt);

    const PeriodicSave& periodicSave() const { return m_periodicSave; }

    QVariant valueForKey(ObservedKey key) const override;

private:
    TimeTracker& m_tracker;
    UserDefaults& m_defaults;
    SystemLog& m_log;
    const QString m_documents;
    Alerts& m_alerts;
    PeriodicSave m_periodicSave;
    Subscription m_settings;
};
