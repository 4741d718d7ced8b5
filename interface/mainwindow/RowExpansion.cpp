// SPDX-License-Identifier: MIT
#include "interface/mainwindow/RowExpansion.h"

#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/outline/TimeTreeModel.h"

#include <unordered_map>

RowExpansion::RowExpansion(TKOutlineDisplayView& table, ProjectList& projects)
    : m_table(table)
    , m_projects(projects) {}

void RowExpansion::restore(const TimeTreeModel& tree) {
    if (!m_wanted)
        return;
    const ProjectList::Project record = std::exchange(m_wanted, nullptr);
    if (m_isSearching) {
        m_table.expandAllRows();
        return;
    }
    const std::vector<Identity> expanded = record->expandedUUIDs().value_or(std::vector<Identity>());
    std::unordered_map<Identity, std::size_t> positions;
    for (std::size_t position = 0; position < expanded.size(); ++position)
        positions.try_emplace(expanded[position], position);
    std::vector<bool> isShown(expanded.size());
    const auto isWanted = [&](const QModelIndex& index) {
        const auto uuid = tree.item(index)->uuid();
        if (!uuid)
            return false;
        const auto found = positions.find(*uuid);
        if (found == positions.end())
            return false;
        isShown[found->second] = true;
        return true;
    };
    // The same rows may have been expanded or collapsed while something else was shown.
    const bool isAnother = std::exchange(m_opened, record) != record;
    if (isAnother || !expanded.empty())
        m_table.expandRows(isWanted, isAnother ? TKOutlineDisplayView::OtherRows::Fold
                                               : TKOutlineDisplayView::OtherRows::Stay);
    m_projects.keepExpanded(*record, isShown);
}

void RowExpansion::searchText(const QString& text) {
    // While this still counts as part of the search, so that the rows that were open before are not
    // forgotten.
    if (text.isEmpty() && m_isSearching)
        m_table.collapseAllRows();
    // Before there are fewer rows: rows that were open and are not found are opened again after the search.
    m_isSearching = !text.isEmpty();
}
