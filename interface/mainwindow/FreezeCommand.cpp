// SPDX-License-Identifier: MIT
#include "interface/mainwindow/FreezeCommand.h"

#include "platform/foundation/text/LocalizedStrings.h"

#include <algorithm>

FreezeCommand::FreezeCommand(TimeTracker& tracker, std::vector<FrozenTimer> timers)
    : QUndoCommand(localized("Freeze"))
    , m_tracker(tracker)
    , m_timers(std::move(timers)) {}

template<class Step>
void FreezeCommand::step(Step&& isPossible) {
    std::vector<FrozenTimer> done;
    for (FrozenTimer& timer : m_timers)
        if (isPossible(timer))
            done.push_back(std::move(timer));
    m_timers = std::move(done);
    setObsolete(m_timers.empty());
}

void FreezeCommand::redo() {
    // The first redo() comes when the command is pushed: the timers are frozen already.
    if (std::exchange(m_isMade, false))
        return;
    step([&](FrozenTimer& timer) { return m_tracker.branchNodeAgain(timer); });
}

void FreezeCommand::undo() {
    // In reverse order, because a window may have been frozen after its application.
    std::ranges::reverse(m_timers);
    step([&](FrozenTimer& timer) { return m_tracker.unbranchNode(timer); });
    std::ranges::reverse(m_timers);
}
