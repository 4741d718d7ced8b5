// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "Classes/history/RemovedRows.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QUndoCommand>

// Forgets chosen times. What undoing brings back is in memory only, and goes with this command.
class ForgetCommand : public QUndoCommand {
public:
    // The history outlives the command. `save` writes the timers.
    ForgetCommand(History& history, ChosenTimes times, std::function<void()> save)
        : QUndoCommand(localized("Forget"))
        , m_history(history)
        , m_times(std::move(times))
        , m_save(std::move(save)) {}

    void redo() override {
        m_forgotten = m_history.forgetTimes(m_times);
        setObsolete(!m_forgotten);
        // The history no longer knows what a crash would cost the timers: from now on their own file has it.
        if (m_forgotten)
            m_save();
    }

    void undo() override {
        setObsolete(!m_history.bringBack(*m_forgotten));
        m_forgotten.reset();
    }

private:
    History& m_history;
    ChosenTimes m_times;
    std::function<void()> m_save;
    std::shared_ptr<ForgottenPieces> m_forgotten;
};
