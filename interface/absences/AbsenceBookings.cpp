// SPDX-License-Identifier: MIT
#include "interface/absences/AbsenceBookings.h"

#include "Classes/report/NamesByHand.h"
#include "interface/history/AmendCommand.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QUndoStack>

using namespace std::chrono_literals;

namespace {

// The history's borders lie on its own clock. Beyond them somebody worked, and that stays as it is.
constexpr auto kLatitude = 1s;

std::int64_t milliseconds(Date date) {
    return std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count();
}

} // namespace

AbsenceBookings::AbsenceBookings(History& history, ProjectList& projects, QUndoStack& undoStack,
                                 const Clock& clock)
    : m_history(history)
    , m_projects(projects)
    , m_undoStack(undoStack)
    , m_clock(clock) {}

AbsenceBookings::~AbsenceBookings() = default;

void AbsenceBookings::book(const ComingBack::Answer& answer) {
    Amendment amendment{.kind = Amendment::Kind::Book,
                        .pieces = {{milliseconds(answer.absence.from - kLatitude),
                                    milliseconds(answer.absence.to + kLatitude)}}};
    if (!answer.name.isEmpty())
        amendment.name = answer.name;
    if (answer.project) {
        amendment.project = RowProject{m_projects.historyIdentity(*answer.project)};
        amendment.projectName = answer.project->label();
    }
    m_undoStack.push(new AmendCommand(localized("Book the Absence"), m_history, std::move(amendment)));
}

void AbsenceBookings::askForNames(std::function<void(const QStringList&)> told) {
    if (!m_reader)
        m_reader = m_history.reader();
    const QDate today = localTime(m_clock.now()).date();
    m_reader->ask<QStringList>([today](SqliteDatabase& file) { return namesByHand(file, today); },
                               [told = std::move(told)](const Result<QStringList>& names) {
                                   if (names)
                                       told(*names);
                               });
}
