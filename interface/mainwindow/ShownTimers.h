// SPDX-License-Identifier: MIT
#pragma once

#include "interface/mainwindow/RowExpansion.h"
#include "interface/mainwindow/ShownSum.h"
#include "interface/outline/ProgramCell.h"
#include "interface/outline/TimeTreeModel.h"

#include <QItemSelectionModel>

class ListOptions;

// What the main window's outline shows: all timers, or those of one project, as the search and the cut-off
// leave them. Expanded rows, the selection and the sum below the outline follow. Nothing is formatted or
// painted while the window cannot be seen.
class ShownTimers : public QObject {
    Q_OBJECT
public:
    // Shows all timers. `rename` is asked when the user has edited a name. All arguments outlive this object.
    ShownTimers(MainWindow& window, TimeTracker& tracker, ProjectList& projects, RunLoop& runLoop,
                const ListOptions& options, const TimeTreeModel::Rename& rename);
    ~ShownTimers() override;

    // Shows a project, or all timers without a `category`, and expands the rows that `record` names. Entries
    // without a row are removed from the record.
    void show(const std::shared_ptr<TimeStoreCategory>& category, const ProjectList::Project& record);
    bool areAll() const { return m_shown == &m_all; }

    // The text in the search field has changed. Rows are found anew by the next show().
    void searchText(const QString& text);
    bool isSearching() const { return m_expansion.isSearching(); }
    // Narrows "All Timers" only.
    void setSearchString(const QString& text);
    // Hides timers with less time than this.
    void setCutoff(float seconds);
    float cutoff() const { return m_cutoff; }
    // Whether the search or the cut-off hides anything.
    bool isNarrowed() const;
    // Narrows the tracker's timers by the search and the cut-off, even while a project is shown.
    void narrowAll();
    // The rows of "All Timers" in their order, as the search and the cut-off leave them, even while a project
    // is shown.
    TimeStoreItem::Children allRows();

    // What the cell of the "Program" column shows for a row.
    TKTableLabelCell cell(const QModelIndex& row) const;
    // The text in place of rows, while there are none.
    QString invitation() const;

    ShownSum& sum() { return m_sum; }
    const ShownSum& sum() const { return m_sum; }
    // Timers were renamed, deleted or came back without being counted.
    void timersEdited();

Q_SIGNALS:
    // Other rows are selected, or something else is shown.
    void selectionChanged();

private:
    TimeTreeModel::Marks spokenMarks() const;
    TimeTreeModel::ShownName shownName() const;
    // Whether what belongs to no project is shown.
    bool isRest() const { return m_record && m_record == m_projects.restItem(); }
    void connectWindow();
    void showTree(TimeTreeModel& tree);
    void restoreExpansion();
    // While rows are narrowed and seen, looks every few seconds for rows that now match or have passed the
    // limit.
    void followCounting();
    void filterAgain();

    MainWindow& m_window;
    TimeTracker& m_tracker;
    const ProjectList& m_projects;
    RunLoop& m_runLoop;
    const ListOptions& m_options;
    ProgramCell m_programCell;
    TimeTreeModel m_all;
    TimeTreeModel m_ofProject;
    // One of the two models.
    TimeTreeModel* m_shown = nullptr;
    // Each tree keeps its own selection.
    QItemSelectionModel m_selectionOfAll;
    QItemSelectionModel m_selectionOfProject;
    // The project that is shown and searched; null while all timers are shown.
    std::shared_ptr<TimeStoreCategory> m_project;
    // Null before anything is shown.
    ProjectList::Project m_record;
    RowExpansion m_expansion;
    ShownSum m_sum;
    // Seconds.
    float m_cutoff = 0;
    // Null while nothing is narrowed or the window cannot be seen.
    std::unique_ptr<RunLoopTimer> m_nextFiltering;
    // The tracker's count of changes when the shown rows were last found.
    std::uint64_t m_filteredChanges = 0;
    // Timers were edited since then.
    bool m_isEdited = false;
    // Receives the window's signals.
    std::optional<QObject> m_reactions{std::in_place};
};
