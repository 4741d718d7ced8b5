// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectNodes.h"
#include "interface/outline/TKTableLabelCell.h"
#include "interface/sidebar/ProjectListModel.h"

#include <QUndoStack>

class Alerts;
class ProjectPatternsWindow;
class QMenu;
class TKOutlineDisplayView;

// The sidebar of projects: shows the list, has the main window show the selected project, and turns what the
// user does into changes of the list, which can all be undone. ProjectList owns the list and its file.
class TKProjectController {
public:
    // What it calls in the main window.
    struct MainController {
        // Shows a project, or all timers without a `category`, and expands the rows that `record` names.
        std::function<void(const std::shared_ptr<TimeStoreCategory>& category,
                           const ProjectList::Project& record)>
            showWithCategory;
        // Freezes these timers, except those already frozen.
        std::function<void(const std::vector<Identity>& timers)> branchUUIDs;
        // Whether a search is expanding and collapsing rows.
        std::function<bool()> blockExpansionSaveWhileSearching;
        // The project's tag for the colour labels; -1 while all timers are shown.
        std::function<void(int tag)> setSelectedTag;
        // The data of a copied or dragged row.
        std::function<std::unique_ptr<QMimeData>(int row)> writeProject;
        // Finds what belongs to no project.
        std::function<void()> findRest;
    };

    // Shows all timers at once. All arguments outlive the controller.
    TKProjectController(ProjectList& projects, ProjectNodes& nodes, NotificationCenter& notifications,
                        TKOutlineDisplayView& projectOutline, Alerts& alerts, QUndoStack& undoStack,
                        MainController mainController);
    TKProjectController(const TKProjectController&) = delete;
    TKProjectController& operator=(const TKProjectController&) = delete;
    ~TKProjectController();

    // The selected project; the main item if none is selected.
    ProjectList::Project currentProject() const;
    bool isMainItemSelected() const;
    // Rather than all timers or those of no project.
    bool isProjectSelected() const;

    void addProject();
    // Opens the window for the patterns of the selected project.
    void editPatterns();
    // Null until it was opened once.
    ProjectPatternsWindow* patternsWindow() const { return m_patternsWindow; }
    // Starts editing the name of the selected row.
    void renameProject();
    // Without asking the user.
    void removeProject();
    // The same after asking the user.
    void tableViewDidRecieveDeleteKey();
    void moveProject(int by);
    bool canMoveProject(int by) const;
    // Freezes every member of the current project.
    void branchProject();
    void addToProject(const std::vector<Identity>& timers, const ProjectList::Project& project);
    // Makes a project of them and starts editing its name.
    void addToNewProject(const std::vector<Identity>& timers);
    // Removes timers from the project that is shown; does nothing while all timers are shown.
    void removeFromSelectedProject(const std::unordered_set<Identity>& timers);
    void setSelectedColorTag(int tag);
    // Appends the colours to a menu, with the current project's marked.
    void addColorLabels(QMenu& menu);
    // The row of a timer was expanded or collapsed, by the user or by a search.
    void expandUUID(const Identity& timer);
    void collapseUUID(const Identity& timer);

    // Shows the selected project anew.
    void refreshProject();
    void refreshProjectForSelectedRow(int row);

    // What a row of the sidebar shows besides its name.
    TKTableLabelCell cell(const QModelIndex& index) const;

    ProjectListModel& model() { return m_model; }

private:
    int selectedRow() const;
    void selectRow(int row);
    void selectionDidChange();
    void updateFromProjectDict(const ProjectList::Project& record);
    void rename(const ProjectList::Project& project, const QString& label);
    void beginEditing(const ProjectList::Project& project);
    void dropBetween(const std::vector<Identity>& items, int childIndex);
    void dropProject(int draggedRow, int position, DropOperation operation);
    // Makes a change that can be undone; `text` names it in the menu.
    template<class Change>
    void change(const QString& text, Change&& change);
    void followReplacement(const ProjectListChange& change);

    ProjectList& m_projects;
    ProjectNodes& m_nodes;
    TKOutlineDisplayView& m_projectOutline;
    Alerts& m_alerts;
    QUndoStack& m_undoStack;
    // The window's own that the sidebar is in.
    ProjectPatternsWindow* m_patternsWindow = nullptr;
    MainController m_mainController;
    ProjectListModel m_model;
    // The selection before the whole list was replaced.
    ProjectList::Project m_selectedBefore;
    int m_selectedRowBefore = 0;
    Subscription m_changes;
    Subscription m_refreshes;
    QObject m_receiver;
};
