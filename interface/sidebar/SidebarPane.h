// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class TKOutlineDisplayView;

// The left side of the main window: the outline of projects, and below it a box with its buttons.
class SidebarPane : public QWidget {
    Q_OBJECT
public:
    // The actions outlive the pane.
    SidebarPane(QAction* addProject, QAction* removeProject);

    TKOutlineDisplayView& projectOutline() const { return *m_projectOutline; }
    // Whether there is a column for times, as far as the pane is wide enough for names beside it. Call it when the outline has its rows.
    void showTimes(bool areShown);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitTimes();
    QWidget* makeBottomBox(QAction* addProject, QAction* removeProject);

    TKOutlineDisplayView* m_projectOutline;
    bool m_areTimesWanted = false;
};
