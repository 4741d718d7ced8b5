// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"

#include <QUndoCommand>

// Freezes timers together. Undoing joins each with the timer that went on in its place. Timers that no longer
// exist are skipped; when none is left, the command is obsolete.
class FreezeCommand : public QUndoCommand {
public:
    // The tracker outlives the command.
    FreezeCommand(TimeTracker& tracker, std::vector<FrozenTimer> timers);

    void redo() override;
    void undo() override;

private:
    // Calls `isPossible` for each timer, and forgets those for which it answers false.
    template<class Step>
    void step(Step&& isPossible);

    TimeTracker& m_tracker;
    // In the order of freezing.
    std::vector<FrozenTimer> m_timers;
    bool m_isMade = true;
};
