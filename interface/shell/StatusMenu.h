// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/projects/ProjectList.h"
#include "interface/outline/TimeTreeOrder.h"
#include "interface/shell/TimerMenuItem.h"
#include "platform/foundation/time/RunLoop.h"

#include <QMenu>

#include <chrono>
#include <functional>
#include <unordered_map>
#include <unordered_set>

class ProgramIcons;
class TimeStoreCategory;
class TwoLineMenuStyle;

// The menu of the tray icon: the timer, all times, the times of projects, and the program's commands. Updated
// when it opens; while it is open, its times move. While it is closed it costs nothing.
class StatusMenu {
public:
    // After this time a menu counts as closed: some desktops never report that, and nobody looks at a menu
    // for longer.
    static constexpr std::chrono::seconds kLongestOpening{120};

    using UpdateSet = std::unordered_set<TimerMenuItem*>;

    // What the menu shows and calls.
    struct Program {
        ProjectList& projects;
        // All timers, as the search and the cut-off of the main window leave them.
        std::function<TimeStoreItem::Children()> applicationObjects;
        std::function<std::shared_ptr<TimeStoreCategory>(const ProjectRecord&)> nodeOfProject;
        // The sum that the main window shows, of that kind.
        std::function<QString(int kind)> totalTime;
        std::function<void()> toggleStartStop;
        std::function<void()> showTimeWindow;
        std::function<void()> showPrefWindow;
        std::function<void()> showAboutBox;
        std::function<void()> terminate;
    };

    // All arguments outlive the menu.
    StatusMenu(Program program, RunLoop& runLoop);
    StatusMenu(const StatusMenu&) = delete;
    StatusMenu& operator=(const StatusMenu&) = delete;
    ~StatusMenu();

    QMenu& mainMenu() { return m_mainMenu; }
    QMenu& applicationTimesMenu() { return m_applicationTimesMenu; }

    // Shows the main window's sum in the line below all timers.
    void makeTitle() { showTitle(kAsShown); }
    // How the desktop shows the menu. Takes effect when the menu next opens.
    void setForm(MenuForm form);
    void showRunning(bool isRunning);
    // Whether the menu begins with a command that shows why windows are not counted. Takes effect when the
    // menu next opens.
    void showObstacle(bool isThere) { m_hasObstacle = isThere; }
    // How long was worked today, as the menu's first line but for trouble; empty for none.
    void showToday(const QString& text);
    // Shows them before the names of programs; null for none, as before it is called. They outlive the menu.
    void setIcons(ProgramIcons* icons) { m_icons = icons; }
    // Commands that pause the timer for a while, offered below the one that pauses it. They outlive the menu.
    void offerPauses(QMenu& pauses);
    // What troubles the account, one line each, shown at the top. Takes effect when the menu next opens.
    void showTrouble(const QString& text) { m_trouble = text; }
    // Rebuilds the menu if it is out of date.
    void updateMainMenu();
    // Called at every tick: updates the times that have changed while the menu is open.
    void updateMenus();

    bool displayingAppMenu() const { return m_displayingAppMenu; }
    // The entries of all submenus that were opened since the status menu was opened.
    const UpdateSet& menuItemUpdateSet() const { return m_menuItemUpdateSet; }

private:
    // The kinds of sums that the controller makes.
    static constexpr int kAsShown = 0;
    static constexpr int kAllObjects = 1;

    void follow(QMenu& menu);
    void menuNeedsUpdate(QMenu& menu);
    void menuWillOpen(QMenu& menu);
    void menuDidClose(QMenu& menu);

    QAction* addCommand(const QString& title, const std::function<void()>& command);
    void addTrouble();
    void addProjects();
    bool isUpToDate() const;
    void fillApplicationTimesMenu();
    TimeStoreItem::Children sorted(const TimeStoreItem::Children& items) const;
    bool fill(QMenu& menu, const TimeStoreItem::Children& items);
    void addItemsFromArray(const TimeStoreItem::Children& items, QMenu& menu);
    void addMenuItemsToSet(const QMenu& menu);
    void empty(QMenu& menu);
    void showTitle(int kind);
    void showIcon(TimerMenuItem& entry);

    // What the menu shows for a project.
    struct ProjectEntry {
        ProjectList::Project project;
        QString label;
    };

    const Program m_program;
    RunLoop& m_runLoop;
    // Sorted by name.
    TimeTreeOrder m_order;
    MenuForm m_form = MenuForm::Drawn;
    std::unique_ptr<TwoLineMenuStyle> m_style;
    QMenu m_mainMenu;
    QMenu m_applicationTimesMenu;
    QAction m_startPauseMenuItem;
    QAction m_obstacleItem;
    QAction m_mainTitleItem;
    QAction m_todayItem;
    QMenu* m_pauses = nullptr;
    ProgramIcons* m_icons = nullptr;
    bool m_isRunning = false;
    std::vector<ProjectEntry> m_shownProjects;
    std::unordered_map<const QMenu*, ProjectList::Project> m_projectMenus;
    UpdateSet m_menuItemUpdateSet;
    bool m_hasObstacle = false;
    QString m_trouble;
    QString m_shownTrouble;
    bool m_displayingAppMenu = false;
    std::unique_ptr<RunLoopTimer> m_longestOpening;
};
