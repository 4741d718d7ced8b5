// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"

#include <QUndoCommand>

// Gives a timer the user's own name, and can be undone. An empty name brings back the original name.
class RenameCommand : public QUndoCommand {
public:
    // The tracker outlives the command.
    RenameCommand(const TimeTracker& tracker, std::shared_ptr<TimeStoreItem> item, const QString& name);

    bool changesAnything() const { return m_newName != m_oldName; }

    void redo() override;
    void undo() override;

private:
    void giveName(const QString& name) const;
    std::shared_ptr<TimeStoreItem> currentItem() const;

    const TimeTracker& m_tracker;
    std::shared_ptr<TimeStoreItem> m_item;
    // The timer's application, which may be the timer itself; null if it was no longer in the tree.
    std::shared_ptr<TimeStoreApp> m_application;
    QString m_oldName;
    QString m_newName;
};
