// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Engine.h"
#include "Classes/engine/TimerControl.h"
#include "Classes/record/TimeDatabase.h"
#include "interface/export/TKExportController.h"
#include "interface/mainwindow/MainCommands.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/RowExpansion.h"
#include "interface/mainwindow/ShownObstacle.h"
#include "interface/mainwindow/ShownSum.h"
#include "interface/mainwindow/TKDocumentController.h"
#include "interface/outline/ProgramCell.h"
#include "interface/outline/TimeTreeModel.h"
#include "interface/pasteboard/TimePasteboard.h"
#include "interface/setup/SetupWindow.h"
#include "interface/shell/LoginItemControl.h"
#include "interface/shell/TKApplicationDelegate.h"
#include "interface/sidebar/TKProjectController.h"

#include <QItemSelectionModel>
#include <QUndoStack>

// The program's one document and the controller of its main window, put together from the tracker, the timer
// control, the database and the window. It connects what the user asks for with what does it, and shows the
// timer's state. Nothing is formatted or painted while the window is not seen.
class TKController : public TimerDisplay {
public:
    // Reads the main store. `exit` ends the process when there is no display at all. The rest must outlive
    // this, and so must the QApplication. `makeActivator` makes another activity source than every tracker gets.
    TKController(Platform& platform, Alerts& alerts, SystemIdleTime::Exit exit,
                 const TimeTracker::MakeActivator& makeActivator = {});
    ~TKController() override;

    // Once, before the window is shown: starts the timer if the last run asked for it. If the activity source is not
    // trusted, shows the setup window in the main window's place instead, and leaves it at that.
    void awakeFromNib();

    // What people see of Ticklog: the setup window where there is one, else the main window.
    QWidget& shownWindow();

    // Brings the shown window to the front.
    void displayMainWindow() { setWindowStateShown(true); }

    // The same; false does nothing.
    void setWindowStateShown(bool isShown);

    // Reads the settings afresh and shows the sum by them.
    void reload();

    // With every tick; also shows why windows are not counted, and what troubles the account, while that is so.
    void refreshTimeSum() override;

    // The sum below the outline; see ShownSum::text().
    QString totalTimeStringForAllObjects(int kind, SumMode* outMode) const {
        return m_sum.text(kind, outMode);
    }

    // Shows a project with `record`'s rows expanded, or all timers without a `category`. Entries of the expanded rows that
    // no row has are dropped from the record.
    void showWithCategory(const std::shared_ptr<TimeStoreCategory>& category,
                          const ProjectList::Project& record);
    // The search field says something else: narrows what is shown and opens it, or shows everything and opens what was
    // open before the search.
    void searchText(const QString& text);
    // Narrows all timers and nothing else.
    void setSearchString(const QString& text);
    void find();
    // The rows of all timers in their order, as narrowed by the search and the cut-off, whether they are shown or not.
    TimeStoreItem::Children applicationObjects();
    // The node of a project, with its timers.
    std::shared_ptr<TimeStoreCategory> timeStoreCategoryForProjectDict(const ProjectRecord& record);
    // Leaves out timers below so many seconds.
    void setCutoffValue(float seconds);
    // All timers as narrowed by the search and the cut-off, also while a project is shown.
    void exportShown();
    // All of the project that is selected.
    void exportProject();

    // Whether all timers are shown rather than a project.
    bool mainItemIsSelected() const { return m_shown == &m_appTreeController; }
    bool blockExpansionSaveWhileSearching() const { return m_expansion.isSearching(); }

    void deselectAll();
    // Deletes the selected rows: unless `forceDelete`, out of the project that is shown, or after a question.
    void tableViewDidReceiveDeleteKey(bool forceDelete);
    // Clears all timers, after a question.
    void clearTimers();
    // Freezes a timer, unless it is frozen.
    void branchNode(TimeStoreNode& node);
    void branchUUIDs(const std::vector<Identity>& timers);
    void branchSelected();
    // The sum as it is shown, in words.
    void copySummaryTime();

    void chooseDatabaseDirectory();
    void restoreDefaultDatabaseLocation() { m_database.restoreDefaultDatabaseLocation(); }
    void revealDatabase();

    // What the control of the toolbar does, and what it shows.
    void toggleDockIcon() { m_appDelegate.presence().toggleDockIcon(); }
    void toggleMenuItem() { m_appDelegate.presence().toggleMenuItem(); }
    void reloadAppType();
    // Pops up a menu of one command at `sender`, or at the window without one.
    void showDisplayStateMenu(QWidget* sender);

    // Writes the timers, and of the projects what is not yet written.
    void saveSettingsToDisk();
    // Has timers and projects say no more of the past than may be known; nothing can be undone any more. Answers the timer
    // of what has nobody's name, if there is one. Not saved yet.
    std::optional<Identity> sayNoMoreThan(const PastTitles& past);

    // The program is no longer the active one: the timers are written whenever that happens.
    void applicationWillTerminate() { saveSettingsToDisk(); }

    // "0.1.0 (build 0.1.0)" in the user's language.
    static QString versionString();

    TimerControl& timer() { return m_timer; }
    TimeTracker& tracker() { return m_engine.tracker(); }
    TimeDatabase& database() { return m_database; }
    AccountTrouble& trouble() { return m_engine.trouble(); }
    TKDocumentController& documents() { return m_documents; }
    TKExportController& exporting() { return *m_exportController; }
    TKApplicationDelegate& appDelegate() { return m_appDelegate; }
    LoginItemControl& loginItem() { return m_loginItem; }
    MainWindow& window() { return m_window; }
    ProjectList& projects() { return m_projects; }
    TKProjectController& projectController() { return *m_projectController; }

    void showToggle(const QString& image, const QString& label) override;
    void showRecordingBadge(bool isRecording) override;
    void updateMenuIconState() override { m_appDelegate.updateMenuIconState(); }
    void updateMenus() override { m_appDelegate.updateMenus(); }

private:
    void connectFields();
    void connectOutline();
    void connectSidebar();
    TKProjectController::MainController projectServices();
    QString invitation() const;
    bool isNarrowed() const;
    // Looks from now on every few seconds for rows that have begun to match or passed the limit, while there is a reason.
    void followCounting();
    void filterAgain();
    void showTree(TimeTreeModel& tree);
    void restoreExpansion();
    void rename(const std::shared_ptr<TimeStoreItem>& item, const QString& name);
    void frozen(std::vector<FrozenTimer> timers);
    void selectionChanged();
    void showLastReset();
    void timersCleared();

    Platform& m_platform;
    Alerts& m_alerts;
    Engine m_engine;
    QUndoStack m_undoStack;
    ProjectNodes m_projectNodes;
    ProjectList m_projects;
    TimeTreeModel m_appTreeController;
    TimeTreeModel m_categoryTreeController;
    // One of the two.
    TimeTreeModel* m_shown = nullptr;
    ProgramCell m_programCell;
    // Each tree keeps its own selection.
    QItemSelectionModel m_appSelection;
    QItemSelectionModel m_categorySelection;
    MainWindow m_window;
    TimePasteboard m_pasteboard;
    // The project that is shown and searched; null while all timers are.
    std::shared_ptr<TimeStoreCategory> m_searchedProject;
    RowExpansion m_expansion;
    ShownSum m_sum;
    // Stands for this in the connections to what it owns, and ends them before any of it goes.
    std::optional<QObject> m_reactions{std::in_place};
    TimerControl m_timer;
    TimeDatabase m_database;
    TKDocumentController m_documents;
    LoginItemControl m_loginItem;
    TKApplicationDelegate m_appDelegate;
    ShownObstacle m_obstacle;
    // Seconds.
    float m_cutoff = 0;
    // Null while nothing is narrowed, or seen.
    std::unique_ptr<RunLoopTimer> m_nextFiltering;
    // Of the tracker, when what is shown was last found out.
    std::uint64_t m_filteredChanges = 0;
    // Somebody gave a timer another name.
    bool m_isRenamed = false;
    // Null before anything is shown.
    ProjectList::Project m_shownRecord;
    Subscription m_defaultsChanges;
    Subscription m_resets;
    // Made when the timers have been read: the rows it opens must be there.
    std::optional<TKProjectController> m_projectController;
    // The same: an archive is of the timers that have been read.
    std::optional<TKExportController> m_exportController;
    std::optional<MainCommands> m_commands;
    // Only where trust was missing at launch.
    std::optional<SetupWindow> m_setupWindow;
};
