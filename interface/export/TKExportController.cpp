// SPDX-License-Identifier: MIT
#include "interface/export/TKExportController.h"

#include "Classes/CsvExport.h"
#include "Classes/Settings.h"
#include "Classes/TimeTracker.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QFileInfo>

TKExportController::TKExportController(TimeTracker& tracker, TimeDatabase& database,
                                       TimeStoreServices& services, const Platform& platform, Alerts& alerts,
                                       std::function<void()> didClear)
    : m_tracker(tracker)
    , m_defaults(platform.defaults)
    , m_log(platform.log)
    , m_documents(platform.folders.documents)
    , m_alerts(alerts)
    , m_periodicSave(tracker, database, services, platform.defaults, platform.clock, std::move(didClear)) {
    m_settings =
        platform.notifications.observe(kUserDefaultsDidChangeNotification,
                                       [this](const Notification&) { m_periodicSave.settingsChanged(); });
}

QString TKExportController::periodicSaveDirectory() const {
    return m_defaults.object(kPeriodicSaveDirectory).toString();
}

void TKExportController::setPeriodicSaveDirectory() {
    const auto folder = m_alerts.chooseFolder(localized("Archive Folder"), m_periodicSave.folder());
    if (!folder)
        return;
    const ChangeAnnouncement announcement(*this, kPeriodicSaveDirectoryKey);
    m_defaults.setObject(kPeriodicSaveDirectory, *folder);
}

void TKExportController::exportShownToCSV() {
    exportSet(m_tracker.timeSet());
}

void TKExportController::exportAllToCSV() {
    const auto& timers = m_tracker.fullTimeSet();
    exportSet({timers.begin(), timers.end()});
}

void TKExportController::exportSet(const TimeStoreItem::Children& timers) {
    const QString suffix = QStringLiteral(".csv");
    auto path = m_alerts.chooseExportFile(localized("Export to CSV"),
                                          m_documents + u'/' + localized("Ticklog Times") + suffix);
    if (!path)
        return;
    // The panel has asked about the name as it was entered.
    if (!path->endsWith(suffix, Qt::CaseInsensitive)) {
        *path += suffix;
        if (QFileInfo::exists(*path) &&
            m_alerts.ask({.message = localized("Replacing a file"),
                          .informativeText = localized("A file of this name exists already.") + u'\n' + *path,
                          .defaultButton = localized("Cancel"),
                          .alternateButton = localized("Replace"),
                          .otherButton = {}}) == Alerts::Default)
            return;
    }
    exportCSVSetToFilename(timers, *path);
}

void TKExportController::exportCSVSetToFilename(const TimeStoreItem::Children& timers, const QString& path) {
    // The table is whole before the panel that shows the progress lets the timers run on.
    const QString table = CsvExport::text(timers, m_tracker.totalTime());
    const auto panel = m_alerts.showProgress(localized("Exporting…"));
    if (!CsvExport::writeText(table, path, [&](double done) { panel->setDone(done); }))
        CsvExport::tellFailure(m_log);
}

QVariant TKExportController::valueForKey(ObservedKey key) const {
    return key == kPeriodicSaveDirectoryKey ? QVariant(periodicSaveDirectory()) : QVariant();
}
