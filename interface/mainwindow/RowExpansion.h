// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"

class TKOutlineDisplayView;
class TimeTreeModel;

// Which rows of the outline are expanded: those that the shown project's record names or, during a search,
// all that are found. While the window cannot be seen, nothing is expanded; restore() makes up for it later.
class RowExpansion {
public:
    // Both outlive it.
    RowExpansion(TKOutlineDisplayView& table, ProjectList& projects);

    // From the next restore() on, the rows of this record are to be expanded.
    void want(const ProjectList::Project& record) { m_wanted = record; }
    // Expands those rows, if that was not done yet. Entries without a row are removed from the record.
    void restore(const TimeTreeModel& tree);

    // Call it when the text in the search field has changed, before the rows change.
    void searchText(const QString& text);
    // While this is true, rows are expanded by the search, which must not be remembered.
    bool isSearching() const { return m_isSearching; }

private:
    TKOutlineDisplayView& m_table;
    ProjectList& m_projects;
    // The record whose rows were expanded last.
    ProjectList::Project m_opened;
    // The record whose rows are still to be expanded; null when that is done.
    ProjectList::Project m_wanted;
    bool m_isSearching = false;
};
