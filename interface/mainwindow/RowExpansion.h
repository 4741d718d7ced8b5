// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"

class TKOutlineDisplayView;
class TimeTreeModel;

// Which rows of the outline are open: those that the shown project's record names, or while somebody searches all that are
// found. Rows that nobody sees are not kept up, so what is wanted meanwhile is done when they are.
class RowExpansion {
public:
    // Both outlive it.
    RowExpansion(TKOutlineDisplayView& table, ProjectList& projects);

    // The rows of this record are to be open, from the next restore() on.
    void want(const ProjectList::Project& record) { m_wanted = record; }
    // Opens what is wanted, if it is not yet. Entries of the record that no row has are dropped from it.
    void restore(const TimeTreeModel& tree);

    // The search field says something else; before fewer or more rows are shown by it.
    void searchText(const QString& text);
    // What is opened now is the search's doing, and not to be remembered.
    bool isSearching() const { return m_isSearching; }

private:
    TKOutlineDisplayView& m_table;
    ProjectList& m_projects;
    // Whose rows were opened last.
    ProjectList::Project m_opened;
    // Null when its rows are open.
    ProjectList::Project m_wanted;
    bool m_isSearching = false;
};
