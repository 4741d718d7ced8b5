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
    // The same rows as before may have been folded or unfolded in what was shown before.
    const bool isAnother = std::exchange(m_opened, record) != record;
    if (isAnother || !expanded.empty())
        m_table.expandRows(isWanted, isAnother ? TKOutlineDisplayView::OtherRows::Fold
                                               : TKOutlineDisplayView::OtherRows::Stay);
    m_projects.keepExpanded(*record, isShown);
}

void RowExpansion::searchText(const QString& text) {
    // While this still counts as the search's doing, so that what was open before it is not forgotten.
    if (text.isEmpty() && m_isSearching)
        m_table.collapseAllRows();
    // From before the rows become fewer: those that were open and are not found are opened again afterwards.
    m_isSearching = !text.isEmpty();
}
