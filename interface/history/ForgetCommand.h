// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "Classes/history/RemovedRows.h"
#include "interface/history/PastPieces.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QUndoCommand>

// Forgets pieces of the past. What undoing brings back is in memory only, and goes with this command.
class ForgetCommand : public QUndoCommand {
public:
    // The history and the clock outlive the command. `save` writes the timers.
    ForgetCommand(History& history, std::vector<Amendment::Piece> pieces, const Clock& clock,
                  std::function<void()> save)
        : QUndoCommand(localized("Forget"))
        , m_history(history)
        , m_pieces(std::move(pieces))
        , m_clock(clock)
        , m_save(std::move(save)) {}

    void redo() override {
        m_forgotten = m_history.forgetPieces(m_pieces);
        // A clock that was set back may have left something ahead of now: that goes too, but what is measured from
        // here on is not meant.
        m_pieces = pastPieces(std::move(m_pieces), m_clock);
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
    std::vector<Amendment::Piece> m_pieces;
    const Clock& m_clock;
    std::function<void()> m_save;
    std::shared_ptr<ForgottenPieces> m_forgotten;
};
