// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QUndoCommand>

// Deletes timers. Undoing brings them back with their time.
class DeleteTimersCommand : public QUndoCommand {
public:
    // The tracker outlives the command.
    DeleteTimersCommand(TimeTracker& tracker, TimerReferences timers)
        : QUndoCommand(localized("Delete"))
        , m_tracker(tracker)
        , m_timers(std::move(timers)) {}

    void redo() override {
        m_records = m_tracker.tree().recordsOf(m_timers);
        m_tracker.removeTimers(m_timers);
    }

    void undo() override { m_tracker.putBack(m_records); }

private:
    TimeTracker& m_tracker;
    TimerReferences m_timers;
    PropertyListArray m_records;
};
