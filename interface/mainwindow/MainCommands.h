// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QUndoStack;
class TKController;
class TKOutlineDisplayView;

// What each command of the main window does, and when it can be chosen.
class MainCommands {
public:
    // Connects the commands. The controller is whole; both outlive this.
    MainCommands(TKController& controller, QUndoStack& undoStack);

    // Another selection, another project, another focus: other commands can be chosen.
    void update();

private:
    void connectDatabase();
    void connectEditing();
    void connectUndo(QUndoStack& undoStack);
    void connectTimers();
    void connectProjects();
    void followFocus();

    TKController& m_controller;
    // The one that commands for rows are meant for: which of the two had the focus last.
    TKOutlineDisplayView* m_focusedOutline;
    // Ends the connections.
    QObject m_receiver;
};
