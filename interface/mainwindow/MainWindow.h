// SPDX-License-Identifier: MIT
#pragma once

#include "interface/history/HistoryActions.h"
#include "interface/mainwindow/MainActions.h"
#include "interface/mainwindow/TKSearchField.h"

#include <QMainWindow>

class AbsenceBar;
class AppTypeControl;
class HistoryPane;
class ObstacleBar;
class QStackedWidget;
class QTabBar;
class QToolBar;
class SidebarPane;
class SumBar;
class TKConstrainedSplitView;
class TKOutlineDisplayView;

// The main window: the projects on the left, the outline of timers with the sum below it or the history, the
// toolbar with the search, the menus. It draws and forwards; its actions are connected from outside.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow();

    const MainActions& actions() const { return m_actions; }
    const HistoryActions& historyActions() const { return m_historyActions; }

    TKOutlineDisplayView& mainTable() const { return *m_mainTable; }

    TKOutlineDisplayView& projectOutline() const;
    SidebarPane& sidebar() const { return *m_sidebar; }
    TKConstrainedSplitView& splitView() const { return *m_splitView; }

    TKSearchField& searchAppField() const { return *m_searchAppField; }

    // Shows a page in the place of the outline of timers, or that again for null. The window owns the page, which stays
    // its child.
    void showInsteadOfTimers(QWidget* page);

    SumBar& sumBar() const { return *m_sumBar; }

    AppTypeControl& appTypeToolbar() const { return *m_appTypeToolbar; }
    ObstacleBar& obstacleBar() const { return *m_obstacleBar; }

    // Made when it is first wanted: most people are never asked.
    AbsenceBar& absenceBar();

    HistoryPane& historyPane() const { return *m_historyPane; }
    // Which side is shown.
    bool isHistoryShown() const { return m_actions.showHistory->isChecked(); }
    void setHistoryShown(bool isShown);

    QMenu& projectMenu() const { return *m_projectMenu; }

    // Whether the user can see the timers: the window is neither closed nor minimised, it does not show the
    // history, and the desktop does not say that it is hidden. Under Wayland that is the only way to learn of
    // minimising and of workspaces.
    bool isSeen() const { return m_isSeen; }
    // The same for the history.
    bool isHistorySeen() const { return m_isHistorySeen; }

    // The commands that have shortcuts.
    QList<QAction*> appMenu() const;
    // Without a menu bar, which must be empty then, the window itself receives the shortcuts.
    void setMenuBarShown(bool isShown);
    // Opens a context menu at the pointer or the row; null is a separator. `complete` adds entries that are
    // no commands.
    void popUp(const QString& name, const QList<QAction*>& items, const QPoint& globalPosition,
               const std::function<void(QMenu&)>& complete = {});
    void showToggle(const QString& image, const QString& label);

Q_SIGNALS:
    void seenChanged(bool isSeen);
    void historySeenChanged(bool isSeen);
    void historyShownChanged(bool isShown);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeToolBar();
    QWidget* makeOutlinePane();
    QWidget* makeTimersPage();
    void connectSides();
    void updateSeen();

    MainActions m_actions;
    HistoryActions m_historyActions;
    QMenu* m_projectMenu = nullptr;
    QToolBar* m_toolBar = nullptr;
    TKSearchField* m_searchAppField = nullptr;
    AppTypeControl* m_appTypeToolbar = nullptr;
    TKConstrainedSplitView* m_splitView = nullptr;
    SidebarPane* m_sidebar = nullptr;
    ObstacleBar* m_obstacleBar = nullptr;
    // Null until it is wanted.
    AbsenceBar* m_absenceBar = nullptr;
    QTabBar* m_sides = nullptr;
    QStackedWidget* m_pages = nullptr;
    HistoryPane* m_historyPane = nullptr;
    TKOutlineDisplayView* m_mainTable = nullptr;
    SumBar* m_sumBar = nullptr;
    // Null while the timers are shown.
    QWidget* m_insteadOfTimers = nullptr;
    bool m_isSeen = false;
    bool m_isHistorySeen = false;
    // The window is shown, but the desktop does not let it paint.
    bool m_isOutOfSight = false;
};
