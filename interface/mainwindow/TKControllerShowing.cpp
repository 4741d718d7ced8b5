// SPDX-License-Identifier: MIT
// What the outline shows: all timers or one project, narrowed by the search and the cut-off.
#include "interface/mainwindow/SumBar.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QLineEdit>

#include <algorithm>
#include <unordered_set>

namespace {

constexpr std::chrono::seconds kBetweenFilterings{2};
constexpr std::chrono::milliseconds kFilteringTolerance{500};

} // namespace

void TKController::showWithCategory(const std::shared_ptr<TimeStoreCategory>& category,
                                    const ProjectList::Project& record) {
    const QString search = m_window.searchAppField().text();
    m_searchedProject = category;
    m_shownRecord = record;
    m_sum.forgetRows();
    m_filteredChanges = m_engine.tracker().narrowing().changes();
    if (category) {
        category->setSearchString(search);
        const std::vector<Identity> members = record->flattenedMembers();
        m_engine.tracker().updateTimeStoreCategory(*category, {members.begin(), members.end()});
        m_categoryTreeController.setSource(TimeTreeModel::sourceOf(category));
        showTree(m_categoryTreeController);
    } else {
        m_engine.tracker().setSearchString(search);
        if (m_engine.tracker().narrowing().isStale())
            m_engine.tracker().reloadSearchFiltering();
        m_appTreeController.setSource(TimeTreeModel::sourceOf(m_engine.tracker()));
        showTree(m_appTreeController);
    }
    refreshTimeSum();
    m_expansion.want(record);
    restoreExpansion();
    followCounting();
    m_window.mainTable().readOutInvitation();
}

void TKController::showTree(TimeTreeModel& tree) {
    if (m_shown == &tree)
        return;
    if (m_shown)
        m_shown->setLive(false);
    m_shown = &tree;
    tree.setLive(m_window.isSeen());
    TKOutlineDisplayView& table = m_window.mainTable();
    table.setTimeModel(tree);
    // The view has made one of its own; it would forget the earlier selection.
    delete table.selectionModel();
    table.setSelectionModel(&tree == &m_appTreeController ? &m_appSelection : &m_categorySelection);
    selectionChanged();
}

void TKController::restoreExpansion() {
    if (m_window.isSeen())
        m_expansion.restore(*m_shown);
}

void TKController::searchText(const QString& text) {
    m_expansion.searchText(text);
    m_projectController->refreshProject();
}

void TKController::setSearchString(const QString& text) {
    m_engine.tracker().setSearchString(text);
    m_appTreeController.synchronize();
}

void TKController::find() {
    m_window.searchAppField().setFocus(Qt::ShortcutFocusReason);
    m_window.searchAppField().selectAll();
}

void TKController::setCutoffValue(float seconds) {
    m_cutoff = seconds;
    m_engine.tracker().setCutoffTime(seconds);
    followCounting();
    m_window.mainTable().readOutInvitation();
    m_window.sumBar().showCutoff(TimeTracker::timeStringForDouble(double(seconds)));
}

QString TKController::invitation() const {
    const TimeTracker& tracker = m_engine.tracker();
    const QString search = m_window.searchAppField().text();
    if (m_searchedProject) {
        const std::vector<Identity> members = m_shownRecord->flattenedMembers();
        const bool isEmpty =
            tracker.timeChildrenForChildUUIDs({members.begin(), members.end()}, false).empty();
        return isEmpty ? localized("This project is empty. Drag timers from “All Timers” onto it.")
                       : localized("No timer matches the search.");
    }
    if (tracker.fullTimeSet().empty())
        return localized("Press Start and work on; the programs you use will appear here.");
    if (search.isEmpty())
        return localized("No timer has as much time as you ask for.");
    const bool isFound = std::ranges::any_of(tracker.fullTimeSet(), [&](const auto& app) {
        return app->prunedObjectForSearchString(search, 0) != nullptr;
    });
    return isFound ? localized("No timer that matches the search has as much time as you ask for.")
                   : localized("No timer matches the search.");
}

bool TKController::isNarrowed() const {
    return !m_window.searchAppField().text().isEmpty() || m_cutoff > 0;
}

void TKController::followCounting() {
    if (!isNarrowed() || !m_window.isSeen()) {
        m_nextFiltering = nullptr;
        return;
    }
    if (m_nextFiltering)
        return;
    filterAgain();
    m_nextFiltering = m_platform.runLoop.scheduleRepeating(kBetweenFilterings, kFilteringTolerance,
                                                           [this] { filterAgain(); });
}

void TKController::filterAgain() {
    const std::uint64_t changes = m_engine.tracker().narrowing().changes();
    const bool isCounted = std::exchange(m_filteredChanges, changes) != changes;
    if (!std::exchange(m_isRenamed, false) && !isCounted)
        return;
    std::unordered_set<const TimeStoreNode*> shown;
    for (int row = 0; row < m_shown->rowCount(); ++row)
        shown.insert(&m_shown->item(m_shown->index(row, 0))->node());
    if (m_searchedProject)
        m_searchedProject->refreshSearch();
    else
        m_engine.tracker().reloadSearchFiltering();
    m_shown->synchronize();
    // A search expands what it finds; rows that the user has collapsed since stay collapsed.
    if (m_expansion.isSearching())
        m_window.mainTable().expandRows([&](const QModelIndex& row) {
            const auto item = m_shown->item(row);
            return !shown.contains(&item->node());
        });
    m_sum.forgetRows();
    refreshTimeSum();
}

void TKController::exportShown() {
    // While a project is shown, the typed text narrows only that project.
    if (!mainItemIsSelected())
        m_engine.tracker().setSearchString(m_window.searchAppField().text());
    if (m_engine.tracker().narrowing().isStale())
        m_engine.tracker().reloadSearchFiltering();
    const QString title = mainItemIsSelected() ? localized("Export to CSV")
                          : isNarrowed()       ? localized("Export All Timers to CSV, Narrowed by the Search")
                                               : localized("Export All Timers to CSV");
    m_exportController->exportShownToCSV(title);
}

void TKController::exportProject() {
    const ProjectList::Project project = m_projectController->currentProject();
    const std::vector<Identity> members = project->flattenedMembers();
    const auto timers = m_engine.tracker().timeChildrenForChildUUIDs({members.begin(), members.end()}, false);
    QString name = project->label();
    m_exportController->exportSet(timers, localized("Export Project to CSV"), name.replace(u'/', u'-'),
                                  summedTime(timers));
}

TimeStoreItem::Children TKController::applicationObjects() {
    const bool isLive = mainItemIsSelected() && m_window.isSeen();
    // Catches up with what changed while it was not live.
    m_appTreeController.setLive(true);
    m_appTreeController.synchronize();
    TimeStoreItem::Children items;
    for (int row = 0; row < m_appTreeController.rowCount(); ++row)
        items.push_back(m_appTreeController.item(m_appTreeController.index(row, 0)));
    m_appTreeController.setLive(isLive);
    return items;
}

std::shared_ptr<TimeStoreCategory>
TKController::timeStoreCategoryForProjectDict(const ProjectRecord& record) {
    auto category = m_projectNodes.timeStoreCategoryForProjectDict(record);
    m_engine.tracker().updateTimeStoreCategory(*category, record.flattenedMembers());
    return category;
}
