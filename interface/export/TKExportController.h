// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/PeriodicSave.h"
#include "Classes/store/TimeStoreItem.h"
#include "platform/Platform.h"
#include "platform/foundation/observing/KeyValueObserving.h"

class Alerts;

// The folder of the scheduled archive, as in the settings, has changed.
inline constexpr ObservedKey kPeriodicSaveDirectoryKey{"periodicSaveDirectory"};

// Exports timers to files for other programs, and owns the scheduled archive, whose settings are stored
// through it. Main thread only.
class TKExportController : public Observable {
public:
    // Plans the scheduled archive. `didClear` is called after an archive has cleared the timers. All
    // arguments must outlive this object.
    TKExportController(TimeTracker& tracker, TimeDatabase& database, TimeStoreServices& services,
                       const Platform& platform, Alerts& alerts, std::function<void()> didClear);

    // The settings of the scheduled archive have changed.
    void updatedSaveTimerPeriodically() { m_periodicSave.updatedSaveTimerPeriodically(); }

    void performPeriodicSave() { m_periodicSave.performPeriodicSave(); }

    void doPeriodicSave() { m_periodicSave.doPeriodicSave(); }

    // Stores the buttons that are selected in the weekday control, and plans by them.
    void setPeriodicDaysOfWeek(const PeriodicSave::Segments& selected) {
        m_periodicSave.setPeriodicDaysOfWeek(selected);
    }

    // Which buttons to select in the weekday control.
    PeriodicSave::Segments selectProperPeriodicDaysOfWeek() const {
        return m_periodicSave.selectProperPeriodicDaysOfWeek();
    }

    // The folder of the archives as it is in the settings: "~" is not expanded.
    QString periodicSaveDirectory() const;
    // Lets the user choose that folder.
    void setPeriodicSaveDirectory();

    // Export what the search and the cut-off leave, or all timers, to a file that the user chooses. `title`
    // is the panel's title.
    void exportShownToCSV(const QString& title);
    void exportAllToCSV();
    // The panel proposes `name`. The sum in the table's head is that of all timers unless one is given.
    void exportSet(const TimeStoreItem::Children& timers, const QString& title, const QString& name,
                   const std::optional<Seconds>& total = std::nullopt);
    // Writes a table to a file that the user chooses, and says so where that fails.
    void exportTable(const QByteArray& table, const QString& title);
    // A failure is only logged.
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
