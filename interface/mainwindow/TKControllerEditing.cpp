// SPDX-License-Identifier: MIT
// What the user does to the timers and to the place where they are kept.
#include "interface/mainwindow/RenameCommand.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/LocalizedStrings.h"

void TKController::deselectAll() {
    m_window.mainTable().clearSelection();
}

void TKController::renameSelected() {
    m_window.mainTable().editName();
}

void TKController::rename(const std::shared_ptr<TimeStoreItem>& item, const QString& name) {
    auto command = std::make_unique<RenameCommand>(item, name);
    if (command->changesAnything())
        m_undoStack.push(command.release());
}

void TKController::tableViewDidReceiveDeleteKey(bool forceDelete) {
    std::unordered_set<Identity> identities;
    for (const auto& item : m_window.mainTable().selectedItems())
        if (const auto uuid = item->uuid())
            identities.insert(*uuid);
    if (!forceDelete) {
        const int answer =
            m_alerts.ask({.message = QStringLiteral("Delete selected times"),
                          .informativeText = QStringLiteral(
                              "Are you sure you wish permanently delete the selected timing rows?"),
                          .defaultButton = QStringLiteral("Keep"),
                          .alternateButton = QStringLiteral("Delete"),
                          .otherButton = {}});
        if (answer == Alerts::Default)
            return;
    }
    m_engine.tracker().removeUUIDs(identities);
}

void TKController::clearTimers() {
    const int answer = m_alerts.ask(
        {.message = localized("Clear Timers"),
         .informativeText = localized("Are you sure you wish to clear the currently visible timers?"),
         .defaultButton = localized("Cancel"),
         .alternateButton = localized("Clear Timers"),
         .otherButton = {}});
    if (answer == Alerts::Default)
        return;
    m_undoStack.clear();
    m_engine.tracker().reset();
    m_timer.computeTime();
    saveSettingsToDisk();
}

void TKController::chooseDatabaseDirectory() {
    const auto location = m_alerts.chooseSaveLocation(localized("Set storage database location."),
                                                      m_database.mainStoreURL(), false);
    if (!location)
        return;
    // What is copied is the file, so the file must know of the last minutes, or be there at all.
    saveSettingsToDisk();
    const Outcome chosen = m_database.chooseDatabaseLocation(*location);
    if (!chosen)
        m_alerts.showError(localized("The database could not be copied."), chosen.failure().text);
}

void TKController::revealDatabase() {
    m_platform.fileViewer.reveal(m_database.mainStoreURL());
}
