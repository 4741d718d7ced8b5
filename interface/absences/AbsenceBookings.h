// SPDX-License-Identifier: MIT
#pragma once

#include "interface/absences/ComingBack.h"

class History;
class HistoryReader;
class QUndoStack;

// Writes into the history what absences were; each booking can be undone.
class AbsenceBookings {
public:
    // Everything outlives this.
    AbsenceBookings(History& history, ProjectList& projects, QUndoStack& undoStack, const Clock& clock);
    AbsenceBookings(const AbsenceBookings&) = delete;
    AbsenceBookings& operator=(const AbsenceBookings&) = delete;
    ~AbsenceBookings();

    void book(const ComingBack::Answer& answer);
    // What was booked by hand before, the latest first. `told` is called later, unless this is gone by then or
    // there is no history that can be read.
    void askForNames(std::function<void(const QStringList&)> told);

private:
    History& m_history;
    ProjectList& m_projects;
    QUndoStack& m_undoStack;
    const Clock& m_clock;
    std::unique_ptr<HistoryReader> m_reader;
};
