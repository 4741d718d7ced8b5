// SPDX-License-Identifier: MIT
#include "interface/export/TKExportController.h"

#include "Classes/common/Settings.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/record/CsvExport.h"
#include "interface/export/FileExtension.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"

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

void TKExportController::exportShownToCSV(const QString& title) {
    exportSet(m_tracker.timeSet(), title, localized("Ticklog Times"));
}

void TKExportController::exportAllToCSV() {
    const auto& timers = m_tracker.fullTimeSet();
    exportSet({timers.begin(), timers.end()}, localized("Export to CSV"), localized("Ticklog Times"));
}

void TKExportController::exportSet(const TimeStoreItem::Children& timers, const QString& title,
                                   const QString& name, const std::optional<Seconds>& total) {
    const QString suffix = QStringLiteral(".csv");
    const auto chosen = m_alerts.chooseExportFile(title, m_documents + u'/' + name + suffix);
    const auto path = chosen ? withExtension(m_alerts, *chosen, suffix) : std::nullopt;
    if (path)
        exportCSVSetToFilename(timers, *path, total);
}

void TKExportController::exportTable(const QByteArray& table, const QString& title) {
    const QString suffix = QStringLiteral(".csv");
    const auto chosen =
        m_alerts.chooseExportFile(title, m_documents + u'/' + localized("Ticklog Times") + suffix);
    const auto path = chosen ? withExtension(m_alerts, *chosen, suffix) : std::nullopt;
    if (!path)
        return;
    if (const Outcome written = WholeFile::write(table, *path); !written)
        m_alerts.showError(localized("The times could not be exported."), written.failure().text);
}

void TKExportController::exportCSVSetToFilename(const TimeStoreItem::Children& timers, const QString& path,
                                                const std::optional<Seconds>& total) {
    // The table is made before the progress panel lets the timers run on, so all its times are of one moment.
    const QString table = CsvExport::text(timers, total.value_or(m_tracker.totalTime()));
    const auto panel = m_alerts.showProgress(localized("Exporting…"));
    if (!CsvExport::writeText(table, path, [&](double done) { panel->setDone(done); }))
        CsvExport::tellFailure(m_log);
}

QVariant TKExportController::valueForKey(ObservedKey key) const {
    return key == kPeriodicSaveDirectoryKey ? QVariant(periodicSaveDirectory()) : QVariant();
}
