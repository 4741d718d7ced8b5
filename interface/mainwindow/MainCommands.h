// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/Announcer.h"

#include <QObject>

class ManualWindow;
class QUndoStack;
class TKController;
class TKOutlineDisplayView;

// Connects the commands of the main window with what they do, and enables those that can be used.
class MainCommands {
public:
    // Connects the commands. The controller must be complete; both arguments outlive this object.
    MainCommands(TKController& controller, QUndoStack& undoStack);

    // Call it when the selection, the project or the focus has changed: enables and disables commands.
    void update();

private:
    void connectDatabase();
    void connectHelp();
    void connectEditing();
    void connectUndo(QUndoStack& undoStack);
    // Says what each step did, and what was undone.
    void announceSteps(QUndoStack& undoStack);
    void connectTimers();
    void connectProjects();
    void connectAddingToProject();
    void followFocus();
    // Whether commands for rows apply to those of the history.
    bool areForHistory() const;

    TKController& m_controller;
    // The outline that had the focus last; commands for rows apply to it. While the history is shown, the
    // table stands for the history's outline.
    TKOutlineDisplayView* m_focusedOutline;
    Announcer m_announcer;
    // Belongs to the main window; null until it was opened once.
    ManualWindow* m_manual = nullptr;
    // Receives all connections; its end disconnects them.
    QObject m_receiver;
};
