// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"

#include <QUndoCommand>

// Timers that have been frozen together. Undone, each becomes one again with what went on in its place. Those that are
// no more stay out of it, and when all are, the command is obsolete.
class FreezeCommand : public QUndoCommand {
public:
    // The tracker outlives the command.
    FreezeCommand(TimeTracker& tracker, std::vector<FrozenTimer> timers);

    void redo() override;
    void undo() override;

private:
    // Takes a step with each timer; those with which it is not possible are forgotten.
    template<class Step>
    void step(Step&& isPossible);

    TimeTracker& m_tracker;
    // In the order in which they were frozen.
    std::vector<FrozenTimer> m_timers;
    bool m_isMade = true;
};
