// SPDX-License-Identifier: MIT
// What the outline shows: all timers or one project, narrowed by the search and the cut-off.
#include "interface/mainwindow/SumBar.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "platform/foundation/LocalizedStrings.h"

#include <QLineEdit>

void TKController::showWithCategory(const std::shared_ptr<TimeStoreCategory>& category,
                                    const ProjectList::Project& record) {
    const QString search = m_window.searchAppField().text();
    m_searchedProject = category;
    m_sum.forgetRows();
    if (category) {
        category->setSearchString(search);
        const std::vector<Identity> members = record->flattenedMembers();
        m_engine.tracker().updateTimeStoreCategory(*category, {members.begin(), members.end()});
        m_categoryTreeController.setSource(TimeTreeModel::sourceOf(category));
        showTree(m_categoryTreeController);
    } else {
        m_engine.tracker().setSearchString(search);
        m_appTreeController.setSource(TimeTreeModel::sourceOf(m_engine.tracker()));
        showTree(m_appTreeController);
    }
    refreshTimeSum();
    m_recordToExpand = record;
    restoreExpansion();
    showInvitation();
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
    // The view made one of its own, which would forget what was selected here before.
    delete table.selectionModel();
    table.setSelectionModel(&tree == &m_appTreeController ? &m_appSelection : &m_categorySelection);
    selectionChanged();
}

void TKController::restoreExpansion() {
    // Rows that nobody sees are not kept up: it waits until they are.
    if (!m_window.isSeen() || !m_recordToExpand)
        return;
    const ProjectList::Project record = std::exchange(m_recordToExpand, nullptr);
    TKOutlineDisplayView& table = m_window.mainTable();
    if (m_isSearchExpanding) {
        table.expandAllRows();
        return;
    }
    const std::vector<Identity> expanded = record->expandedUUIDs().value_or(std::vector<Identity>());
    std::unordered_map<Identity, std::size_t> positions;
    for (std::size_t position = 0; position < expanded.size(); ++position)
        positions.try_emplace(expanded[position], position);
    std::vector<bool> isShown(expanded.size());
    const auto isWanted = [&](const QModelIndex& index) {
        const auto uuid = m_shown->item(index)->uuid();
        if (!uuid)
            return false;
        const auto found = positions.find(*uuid);
        if (found == positions.end())
            return false;
        isShown[found->second] = true;
        return true;
    };
    if (!expanded.empty())
        table.expandRows(isWanted);
    m_projects.keepExpanded(*record, isShown);
}

void TKController::searchText(const QString& text) {
    // While this still counts as the search's doing, so that what was open before it is not forgotten.
    if (text.isEmpty() && m_isSearchExpanding)
        m_window.mainTable().collapseAllRows();
    // From before the rows become fewer: those that were open and are not found are opened again afterwards.
    m_isSearchExpanding = !text.isEmpty();
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
    m_engine.tracker().setCutoffTime(seconds);
    showInvitation();
    m_window.sumBar().showCutoff(TimeTracker::timeStringForDouble(double(seconds)));
}

void TKController::showInvitation() {
    const auto text = [&] {
        if (!m_window.searchAppField().text().isEmpty())
            return localized("No timer matches the search.");
        if (m_searchedProject)
            return localized("This project is empty. Drag timers from “All Timers” onto it.");
        if (!m_engine.tracker().fullTimeSet().empty())
            return localized("No timer has as much time as you ask for.");
        return localized("Press Start and work on; the programs you use will appear here.");
    };
    m_window.mainTable().setInvitation(text());
}

TimeStoreItem::Children TKController::applicationObjects() {
    const bool isLive = mainItemIsSelected() && m_window.isSeen();
    // Makes up for what was missed while nobody looked.
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
