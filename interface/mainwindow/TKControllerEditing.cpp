// SPDX-License-Identifier: MIT
// What the user does to the timers, and what they take out of them.
#include "Classes/rules/PastTitles.h"
#include "interface/mainwindow/DeleteTimersCommand.h"
#include "interface/mainwindow/FreezeCommand.h"
#include "interface/mainwindow/RenameCommand.h"
#include "interface/mainwindow/TKController.h"
#include "interface/mainwindow/TimeSum.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/pasteboard/TimerTable.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QApplication>
#include <QClipboard>

void TKController::deselectAll() {
    m_window.mainTable().clearSelection();
}

void TKController::rename(const std::shared_ptr<TimeStoreItem>& item, const QString& name) {
    auto command = std::make_unique<RenameCommand>(m_engine.tracker(), item, name);
    if (command->changesAnything())
        m_undoStack.push(command.release());
}

void TKController::tableViewDidReceiveDeleteKey(bool forceDelete) {
    const TimeStoreItem::Children items = m_window.mainTable().selectedItems();
    if (!forceDelete && m_projectController->isProjectSelected()) {
        std::unordered_set<Identity> identities;
        for (const auto& item : items)
            if (const auto uuid = item->uuid())
                identities.insert(*uuid);
        m_projectController->removeFromSelectedProject(identities);
        return;
    }
    // Exactly the rows that are shown: another timer with the same identity is not meant. Time that is no timer's own
    // cannot be deleted by itself.
    TimerReferences timers = m_engine.tracker().tree().referencesTo(items);
    if (timers.empty() && !items.empty())
        return;
    if (!forceDelete) {
        const int answer =
            m_alerts.ask({.message = localized("Delete selected times"),
                          .informativeText =
                              localized("Are you sure you wish permanently delete the selected timing rows?"),
                          .defaultButton = localized("Keep"),
                          .alternateButton = localized("Delete"),
                          .otherButton = {}});
        if (answer == Alerts::Default)
            return;
    }
    if (!timers.empty())
        m_undoStack.push(new DeleteTimersCommand(m_engine.tracker(), std::move(timers)));
}

void TKController::branchNode(TimeStoreNode& node) {
    if (!node.branched())
        frozen({m_engine.tracker().branchNode(node)});
}

void TKController::branchUUIDs(const std::vector<Identity>& timers) {
    frozen(m_engine.tracker().branchUUIDs(timers));
}

void TKController::branchSelected() {
    std::vector<FrozenTimer> timers;
    for (const auto& item : m_window.mainTable().selectedItems())
        if (TimeStoreNode& node = item->node(); item->uuid() && !node.branched())
            timers.push_back(m_engine.tracker().branchNode(node));
    frozen(std::move(timers));
}

void TKController::frozen(std::vector<FrozenTimer> timers) {
    if (!timers.empty())
        m_undoStack.push(new FreezeCommand(m_engine.tracker(), std::move(timers)));
}

void TKController::copyForSpreadsheet() {
    const TimeStoreItem::Children selected = m_window.mainTable().selectedItems();
    const SpreadsheetTable table =
        timerTable(selected.empty() ? m_window.mainTable().topItems() : withoutDoubleCounting(selected),
                   m_engine.tracker().tree(), m_projects, m_window.searchAppField().text());
    QApplication::clipboard()->setMimeData(table.copied(true).release());
}

void TKController::copySummaryTime() {
    constexpr int kInWords = 2;
    SumMode mode = SumMode::None;
    QApplication::clipboard()->setText(totalTimeStringForAllObjects(kInWords, &mode));
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
    m_engine.tracker().reset();
    timersCleared();
}

void TKController::timersCleared() {
    // The steps on the stack were done to timers that no longer exist.
    m_undoStack.clear();
    m_timer.refreshDisplay();
    saveSettingsToDisk();
    m_projectController->refreshProject();
}

std::optional<Identity> TKController::sayNoMoreThan(const PastTitles& past) {
    const auto gone = m_engine.tracker().sayNoMoreThan(past);
    for (const auto& project : m_projects.projects())
        m_projects.removeMembers(*project, gone);
    // The undo steps know the hidden names.
    m_undoStack.clear();
    m_timer.refreshDisplay();
    m_projectController->refreshProject();
    for (const auto& app : m_engine.tracker().fullTimeSet())
        if (app->isNamed(kPrivateName))
            return app->uuid();
    return std::nullopt;
}

void TKController::saveSettingsToDisk() {
    (void)m_database.saveSettingsToDiskAtURL();
    m_projects.writeChanges();
}

void TKController::exportShown() {
    m_shown.narrowAll();
    const QString title = mainItemIsSelected() ? localized("Export to CSV")
                          : m_shown.isNarrowed()
                              ? localized("Export All Timers to CSV, Narrowed by the Search")
                              : localized("Export All Timers to CSV");
    m_exportController->exportShownToCSV(title);
}

void TKController::exportForSpreadsheet() {
    SpreadsheetTable table = timerTable(m_window.mainTable().topItems(), m_engine.tracker().tree(),
                                        m_projects, m_window.searchAppField().text());
    table.heads << localized("From") << localized("To");
    const QString from = localTime(m_engine.tracker().lastResetDate()).toString(Qt::ISODate);
    const QString to = localTime(m_platform.clock.now()).toString(Qt::ISODate);
    for (QStringList& row : table.rows)
        row << from << to;
    m_exportController->exportTable(table.csv(), localized("Export to CSV"));
}

void TKController::exportProject() {
    const ProjectList::Project project = m_projectController->currentProject();
    const std::vector<Identity> members = project->flattenedMembers();
    const auto timers = m_engine.tracker().timeChildrenForChildUUIDs({members.begin(), members.end()}, false);
    QString name = project->label();
    m_exportController->exportSet(timers, localized("Export Project to CSV"), name.replace(u'/', u'-'),
                                  summedTime(timers));
}
