// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/TimeStoreItem.h"

#include <QUndoCommand>

// The user's own name for a timer, which can be taken back. An empty name gives back the timer's own.
class RenameCommand : public QUndoCommand {
public:
    RenameCommand(std::shared_ptr<TimeStoreItem> item, const QString& name);

    bool changesAnything() const { return m_newName != m_oldName; }

    void redo() override;
    void undo() override;

private:
    std::shared_ptr<TimeStoreItem> m_item;
    QString m_oldName;
    QString m_newName;
};
