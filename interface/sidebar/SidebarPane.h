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

private:
    QWidget* makeBottomBox(QAction* addProject, QAction* removeProject);

    TKOutlineDisplayView* m_projectOutline;
};
