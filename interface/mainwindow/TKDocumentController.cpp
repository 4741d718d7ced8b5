// SPDX-License-Identifier: MIT
#include "interface/mainwindow/TKDocumentController.h"

#include "Classes/record/FileReading.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/IncomingTimers.h"
#include "interface/export/FileExtension.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFileInfo>

namespace {

// The timers belong to this thread, so they are made here, in pieces that take a few hundredths of a second.
constexpr std::size_t kTimersAtATime = 10'000;
constexpr double kIsRead = 0.5;

} // namespace

TKDocumentController::TKDocumentController(TimeDatabase& database, Alerts& alerts,
                                           std::function<void()> imported)
    : m_database(database)
    , m_alerts(alerts)
    , m_imported(std::move(imported)) {}

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
    m_imported();
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
