// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"

#include <QUndoCommand>

// Says what a piece of the past was. Undoing brings back what was there.
class AmendCommand : public QUndoCommand {
public:
    // The history outlives the command.
    AmendCommand(const QString& text, History& history, Amendment amendment)
        : QUndoCommand(text)
        , m_history(history)
        , m_amendment(std::move(amendment)) {
        // Redone later, a booking means no more than that.
        if (m_amendment.kind == Amendment::Kind::Book)
            m_amendment.pieces = m_history.pastOf(std::move(m_amendment.pieces));
    }

    void redo() override {
        m_made = m_history.amend(m_amendment);
        setObsolete(!m_made);
    }

    void undo() override { m_history.takeBack(*m_made); }

private:
    History& m_history;
    Amendment m_amendment;
    std::optional<std::int64_t> m_made;
};
