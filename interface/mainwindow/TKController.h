// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Engine.h"
#include "Classes/engine/TimerControl.h"
#include "Classes/record/TimeDatabase.h"
#include "interface/export/TKExportController.h"
#include "interface/mainwindow/MainCommands.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/ShownObstacle.h"
#include "interface/mainwindow/ShownTimers.h"
#include "interface/mainwindow/TKDocumentController.h"
#include "interface/pasteboard/TimePasteboard.h"
#include "interface/setup/SetupWindow.h"
#include "interface/shell/ListOptions.h"
#include "interface/shell/LoginItemControl.h"
#include "interface/shell/TKApplicationDelegate.h"
#include "interface/sidebar/SidebarTimes.h"
#include "interface/sidebar/TKProjectController.h"

#include <QUndoStack>

class ProgramIcons;
class TKLabelViewController;

// The program's only document and the controller of its main window. It is made of the tracker, the timer
// control, the database, the window and what the window shows; it connects what the user asks for with the
// code that does it, and shows the timer's state.
class TKController : public TimerDisplay {
public:
    // Reads the main store. `exit` ends the process when there is no display at all. `makeActivator` makes
    // another activity source than the usual one. The other arguments, and the QApplication, must outlive
    // this object.
    TKController(Platform& platform, Alerts& alerts, SystemIdleTime::Exit exit,
                 const TimeTracker::MakeActivator& makeActivator = {});
    ~TKController() override;

    // Called once before the window is shown: starts the timer if the last run asked for it. If the activity
    // source is not trusted, only shows the setup window in place of the main window.
    void awakeFromNib();

    // The window that the user sees: the setup window if there is one, else the main window.
    QWidget& shownWindow();

    // Brings that window to the front.
    void displayMainWindow() { setWindowStateShown(true); }

    // The same if true; false does nothing.
    void setWindowStateShown(bool isShown);

    // Reads the settings again and shows the sum accordingly.
    void reload();

    // Called at every tick. Also shows why windows are not counted and what troubles the account, as long as
    // there is something to say.
    void refreshTimeSum() override;

    // The sum below the outline; see ShownSum::text().
    QString totalTimeStringForAllObjects(int kind, SumMode* outMode) const {
        return m_shown.sum().text(kind, outMode);
    }

    // See ShownTimers::show().
    void showWithCategory(const std::shared_ptr<TimeStoreCategory>& category,
                          const ProjectList::Project& record) {
        m_shown.show(category, record);
    }
    // The text in the search field has changed. A text narrows the rows and expands them; an empty one shows
    // all rows and expands those that were expanded before the search.
    void searchText(const QString& text);
    // Narrows "All Timers" only.
    void setSearchString(const QString& text) { m_shown.setSearchString(text); }
    void find();
    // See ShownTimers::allRows().
    TimeStoreItem::Children applicationObjects() { return m_shown.allRows(); }
    // The node of a project, with its timers.
    std::shared_ptr<TimeStoreCategory> timeStoreCategoryForProjectDict(const ProjectRecord& record);
    // Hides timers with less time than this.
    void setCutoffValue(float seconds) { m_shown.setCutoff(seconds); }
    // Exports "All Timers" as the search and the cut-off leave them, even while a project is shown.
    void exportShown();
    // The same, of what is shown, as a table of which a spreadsheet can add up the times.
    void exportForSpreadsheet();
    // Exports the selected project, whole.
    void exportProject();

    // The name, as the history has it, of what is selected in the sidebar; absent for all timers.
    std::optional<QString> shownProject() const;
    // The colour label of the first project of this name; 0 without one.
    int colorOfProject(const QString& name) const;
    // Whether all timers are shown rather than a project.
    bool mainItemIsSelected() const { return m_shown.areAll(); }
    bool blockExpansionSaveWhileSearching() const { return m_shown.isSearching(); }

    void deselectAll();
    // Without `forceDelete`, removes the selected rows from the project that is shown or, among all timers,
    // deletes them after a question. With it, deletes them at once.
    void tableViewDidReceiveDeleteKey(bool forceDelete);
    // Clears all timers after asking the user.
    void clearTimers();
    // Freezes a timer if it is not frozen yet.
    void branchNode(TimeStoreNode& node);
    void branchUUIDs(const std::vector<Identity>& timers);
    void branchSelected();
    // Copies the selected rows, or all that are shown, as such a table.
    void copyForSpreadsheet();
    // Copies the sum as shown, in words.
    void copySummaryTime();

    // The toolbar's control for where Ticklog appears: what it does and what it shows.
    void toggleDockIcon() { m_appDelegate.presence().toggleDockIcon(); }
    void toggleMenuItem() { m_appDelegate.presence().toggleMenuItem(); }
    void reloadAppType();
    // Opens a menu with one command at `sender`, or at the window if that is null.
    void showDisplayStateMenu(QWidget* sender);

    // Writes the timers, and those changes of the projects that are not written yet.
    void saveSettingsToDisk();
    // Applies the rules for titles to timers and projects of the past; nothing can be undone afterwards.
    // Answers the timer that holds the time of hidden programs, if there is one. Does not save.
    std::optional<Identity> sayNoMoreThan(const PastTitles& past);

    // The program is not the active one any more: writes the timers each time this happens.
    void applicationWillTerminate() { saveSettingsToDisk(); }

    // "0.1.0 (build 0.1.0)" in the user's language.
    static QString versionString();

    TimerControl& timer() { return m_timer; }
    TimeTracker& tracker() { return m_engine.tracker(); }
    TimeDatabase& database() { return m_database; }
    AccountTrouble& trouble() { return m_engine.trouble(); }
    TKUUIDManager& registry() { return m_engine.registry(); }
    TKDocumentController& documents() { return m_documents; }
    TKExportController& exporting() { return *m_exportController; }
    TKApplicationDelegate& appDelegate() { return m_appDelegate; }
    LoginItemControl& loginItem() { return m_loginItem; }
    MainWindow& window() { return m_window; }
    ProjectList& projects() { return m_projects; }
    ListOptions& listOptions() { return m_listOptions; }
    // Shows these icons in its lists and menus, where the user wants any. They outlive the controller.
    void setProgramIcons(ProgramIcons& icons);
    // Null until they are given; listOptions() says whether the user wants any.
    ProgramIcons* programIcons() const { return m_programIcons; }
    QUndoStack& undoStack() { return m_undoStack; }
    TKProjectController& projectController() { return *m_projectController; }
    SidebarTimes& sidebarTimes() { return *m_sidebarTimes; }

    void showToggle(const QString& image, const QString& label) override;
    void showRecordingBadge(bool isRecording) override;
    void updateMenuIconState() override { m_appDelegate.updateMenuIconState(); }
    void updateMenus() override { m_appDelegate.updateMenus(); }
    std::optional<Instant> nextTurn() const override;

private:
    void makeControllers();
    void connectFields();
    void connectOutline();
    void connectSidebar();
    void makeSidebarTimes();
    void showListOptions();
    TKProjectController::MainController projectServices();
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
    ListOptions m_listOptions;
    // Null until they are given.
    ProgramIcons* m_programIcons = nullptr;
    MainWindow m_window;
    ShownTimers m_shown;
    TimePasteboard m_pasteboard;
    // Receives all connections. Destroyed first, so that nothing is called any more while the rest is
    // destroyed.
    std::optional<QObject> m_reactions{std::in_place};
    TimerControl m_timer;
    TimeDatabase m_database;
    TKDocumentController m_documents;
    LoginItemControl m_loginItem;
    TKApplicationDelegate m_appDelegate;
    ShownObstacle m_obstacle;
    Subscription m_defaultsChanges;
    Subscription m_resets;
    // The colour labels in the menu of projects, which owns them.
    TKLabelViewController* m_tkLabelProjectViewController = nullptr;
    // These are made after the timers have been read, because they expand their rows and archive them.
    std::optional<TKProjectController> m_projectController;
    std::optional<SidebarTimes> m_sidebarTimes;
    std::optional<TKExportController> m_exportController;
    std::optional<MainCommands> m_commands;
    // Only if trust was missing at launch.
    std::optional<SetupWindow> m_setupWindow;
};
