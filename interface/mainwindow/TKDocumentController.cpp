// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKDocumentController.h"

#include "Classes/record/FileReading.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/IncomingTimers.h"
#include "interface/export/FileExtension.h"
#include "interface/shell/Alerts.h"
#include "platform/FileViewer.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFileInfo>

namespace {

// The timers belong to this thread, so they are made here, in pieces that take a few hundredths of a second.
constexpr std::size_t kTimersAtATime = 10'000;
constexpr double kIsRead = 0.5;

} // namespace

TKDocumentController::TKDocumentController(TimeDatabase& database, Alerts& alerts, FileViewer& fileViewer,
                                           MainController mainController)
    : m_database(database)
    , m_alerts(alerts)
    , m_fileViewer(fileViewer)
    , m_mainController(std::move(mainController)) {}

void TKDocumentController::openDocumentWithContentsOfURL(const QString& location,
                                                         const Completion& completion) {
    const int answer =
        m_alerts.ask({.message = localized("Replacing timers"),
                      .informativeText = localized(
                          "Importing timers will replace all current timers. Your current timers will "
                          "be saved in a backup file next to the Ticklog database."),
                      .defaultButton = localized("Cancel"),
                      .alternateButton = localized("Replace"),
                      .otherButton = {}});
    if (answer != Alerts::Default)
        importFrom(location);
    if (completion)
        completion(false);
}

void TKDocumentController::importFrom(const QString& location) {
    FileReading reading(location);
    std::optional<Result<TimeDatabase::Incoming>> timers;
    const auto done = [&] {
        if (reading.done() < 1)
            return reading.done() * kIsRead;
        if (!timers)
            timers = m_database.incomingFrom(location, reading.take());
        return *timers ? kIsRead + (1 - kIsRead) * (**timers)->makeMore(kTimersAtATime) : 1;
    };
    if (!m_alerts.waitFor(localized("Importing…"), done))
        return;
    const Outcome imported = m_database.importDatabase(location, *timers);
    m_mainController.imported();
    if (!imported)
        m_alerts.showError(localized("The timers could not be imported."), imported.failure().text);
}

void TKDocumentController::openDocument() {
    const auto location = m_alerts.chooseOpenFile(localized("Import Database"),
                                                  QFileInfo(m_database.mainStoreURL()).absolutePath());
    if (location)
        openDocumentWithContentsOfURL(*location);
}

void TKDocumentController::saveCopy() {
    const auto chosen =
        m_alerts.chooseSaveLocation(localized("Save a Copy As"), m_database.mainStoreURL(), true);
    const auto location = chosen ? withExtension(m_alerts, *chosen, QStringLiteral(".tkd")) : std::nullopt;
    if (!location)
        return;
    const Outcome saved = m_database.saveSettingsToDiskAtURL(*location);
    if (!saved)
        m_alerts.showError(localized("The copy could not be saved."), saved.failure().text);
}

void TKDocumentController::chooseDatabaseDirectory() {
    const auto location = m_alerts.chooseSaveLocation(localized("Set storage database location."),
                                                      m_database.mainStoreURL(), false);
    if (!location)
        return;
    const QString suffix = QStringLiteral(".tkd");
    const QString whole = location->endsWith(suffix, Qt::CaseInsensitive) ? *location : *location + suffix;
    // The file itself is copied, so it must be up to date, and must exist.
    m_mainController.save();
    const Outcome chosen = m_database.chooseDatabaseLocation(whole);
    if (!chosen)
        m_alerts.showError(localized("The database could not be copied."), chosen.failure().text);
}

void TKDocumentController::revealDatabase() {
    m_fileViewer.reveal(m_database.mainStoreURL());
}
