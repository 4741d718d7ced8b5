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

class TimeStoreCategory;
class TwoLineMenuStyle;

// The menu of the tray icon: the timer, all times and those of the projects, and the program's commands. Brought up to
// date when it is opened; while it is open, the times that are shown in it move. Closed it costs nothing.
class StatusMenu {
public:
    // Some desktops never say that they closed a menu. Nobody looks at one for longer.
    static constexpr std::chrono::seconds kLongestOpening{120};

    using UpdateSet = std::unordered_set<TimerMenuItem*>;

    // The times that it shows, and what can be chosen in it.
    struct Program {
        ProjectList& projects;
        // All timers, as they are narrowed in the main window.
        std::function<TimeStoreItem::Children()> applicationObjects;
        std::function<std::shared_ptr<TimeStoreCategory>(const ProjectRecord&)> nodeOfProject;
        // What the main window sums up, of that kind.
        std::function<QString(int kind)> totalTime;
        std::function<void()> toggleStartStop;
        std::function<void()> showTimeWindow;
        std::function<void()> showPrefWindow;
        std::function<void()> showAboutBox;
        std::function<void()> terminate;
    };

    // All that is handed to it outlives it.
    StatusMenu(Program program, RunLoop& runLoop);
    StatusMenu(const StatusMenu&) = delete;
    StatusMenu& operator=(const StatusMenu&) = delete;
    ~StatusMenu();

    QMenu& mainMenu() { return m_mainMenu; }
    QMenu& applicationTimesMenu() { return m_applicationTimesMenu; }

    // Has the line below all timers say what the main window sums up now.
    void makeTitle() { showTitle(kAsShown); }
    // As the desktop that is to show it wants it; for the next opening.
    void setForm(MenuForm form);
    void showRunning(bool isRunning);
    // Whether the menu begins with a command that shows why windows are not counted; for the next opening.
    void showObstacle(bool isThere) { m_hasObstacle = isThere; }
    // What troubles the account, a line each, with which the menu begins; for the next opening.
    void showTrouble(const QString& text) { m_trouble = text; }
    // Rebuilds the menu if it is not up to date.
    void updateMainMenu();
    // At every tick: shows the times that are others, while the menu is open.
    void updateMenus();

    bool displayingAppMenu() const { return m_displayingAppMenu; }
    // The entries of all menus that were opened since the status menu was.
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

    // What is shown of a project.
    struct ProjectEntry {
        ProjectList::Project project;
        QString label;
    };

    const Program m_program;
    RunLoop& m_runLoop;
    // By name.
    TimeTreeOrder m_order;
    MenuForm m_form = MenuForm::Drawn;
    std::unique_ptr<TwoLineMenuStyle> m_style;
    QMenu m_mainMenu;
    QMenu m_applicationTimesMenu;
    QAction m_startPauseMenuItem;
    QAction m_obstacleItem;
    QAction m_mainTitleItem;
    std::vector<ProjectEntry> m_shownProjects;
    std::unordered_map<const QMenu*, ProjectList::Project> m_projectMenus;
    UpdateSet m_menuItemUpdateSet;
    bool m_hasObstacle = false;
    QString m_trouble;
    QString m_shownTrouble;
    bool m_displayingAppMenu = false;
    std::unique_ptr<RunLoopTimer> m_longestOpening;
};
