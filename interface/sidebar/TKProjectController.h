// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectNodes.h"
#include "interface/outline/TKTableLabelCell.h"
#include "interface/sidebar/ProjectListModel.h"

#include <QUndoStack>

class Alerts;
class QMenu;
class TKOutlineDisplayView;

// The sidebar of projects: shows the list, has the main window show what is selected in it, and turns what the user
// does there into changes of the list, each of which can be undone. The list and its file are ProjectList's.
class TKProjectController {
public:
    // What the main window does for projects.
    struct MainController {
        // Shows a project with the rows of `record` expanded, or all timers without a `category`.
        std::function<void(const std::shared_ptr<TimeStoreCategory>& category,
                           const ProjectList::Project& record)>
            showWithCategory;
        // Freezes those of the timers that are not yet frozen.
        std::function<void(const std::vector<Identity>& timers)> branchUUIDs;
        // Whether expanding and collapsing is a search's doing.
        std::function<bool()> blockExpansionSaveWhileSearching;
        // The project's tag for the colour labels; -1 when all timers are shown.
        std::function<void(int tag)> setSelectedTag;
        // What a copied or dragged row carries.
        std::function<std::unique_ptr<QMimeData>(int row)> writeProject;
    };

    // Shows all timers at once. Everything outlives the controller.
    TKProjectController(ProjectList& projects, ProjectNodes& nodes, NotificationCenter& notifications,
                        TKOutlineDisplayView& projectOutline, Alerts& alerts, QUndoStack& undoStack,
                        MainController mainController);
    TKProjectController(const TKProjectController&) = delete;
    TKProjectController& operator=(const TKProjectController&) = delete;
    ~TKProjectController();

    // The selected project; the main item when none is.
    ProjectList::Project currentProject() const;
    bool isMainItemSelected() const;

    void addProject();
    // The sidebar's own command for the name.
    void renameProject();
    // Without a question.
    void removeProject();
    // The same after a question.
    void tableViewDidRecieveDeleteKey();
    void moveProject(int by);
    bool canMoveProject(int by) const;
    // Freezes every member of the current project.
    void branchProject();
    // Takes timers out of the project shown; nothing happens while all timers are.
    void removeFromSelectedProject(const std::unordered_set<Identity>& timers);
    void setSelectedColorTag(int tag);
    // Puts the colours at the end of a menu, with the current project's marked.
    void addColorLabels(QMenu& menu);
    // The user or a search opened or closed a timer's row.
    void expandUUID(const Identity& timer);
    void collapseUUID(const Identity& timer);

    // Shows anew what is selected.
    void refreshProject();
    void refreshProjectForSelectedRow(int row);

    // What a row of the sidebar shows beside its name.
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
    // Does it, so that it can be undone under that name.
    template<class Change>
    void change(const QString& text, Change&& change);
    void followReplacement(const ProjectListChange& change);

    ProjectList& m_projects;
    ProjectNodes& m_nodes;
    TKOutlineDisplayView& m_projectOutline;
    Alerts& m_alerts;
    QUndoStack& m_undoStack;
    MainController m_mainController;
    ProjectListModel m_model;
    // What was selected when the whole list was replaced.
    ProjectList::Project m_selectedBefore;
    int m_selectedRowBefore = 0;
    Subscription m_changes;
    Subscription m_refreshes;
    QObject m_receiver;
};
