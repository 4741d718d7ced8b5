// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"

#include <QUndoCommand>

// The user's own name for a timer, which can be taken back. An empty name gives back the timer's own.
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
    // The timer itself or the one above it; null when it was in the tree no more.
    std::shared_ptr<TimeStoreApp> m_application;
    QString m_oldName;
    QString m_newName;
};
