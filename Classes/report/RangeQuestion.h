// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"
#include "Classes/report/CalendarRange.h"
#include "Classes/report/RangeAnswer.h"
#include "platform/foundation/files/Folders.h"

class SqliteDatabase;

// A row of the outline: a program or a project, or a part of one, by the names that the answer has.
struct RowChoice {
    bool isProject = false;
    QString name;
    // A title of the program, or a program of the project.
    std::optional<QString> part;
};

// What the window asks of the history. A plain value, so that it can be answered on another thread.
struct RangeQuestion {
    // Throws SqliteError.
    RangeAnswer answeredBy(SqliteDatabase& history) const;
    // The titles of one program in the range, the most time first. For ranges whose answer has none.
    std::vector<RangeAnswer::Entry> titlesOf(const QString& program, SqliteDatabase& history) const;
    // How long was worked in the range, in milliseconds.
    qint64 workIn(SqliteDatabase& history) const;
    // How much of the range nobody worked, in milliseconds: what a booking would fill.
    qint64 freeIn(SqliteDatabase& history) const;
    // When the rows were that a person has chosen, or all rows if none is, without idle time.
    ChosenTimes timesOf(const std::vector<RowChoice>& rows, SqliteDatabase& history) const;
    // From when to when the stretch was whose middle is at this moment, even if it reaches out of the range. Empty
    // when there is none of this program and title.
    ChosenTimes wholeStretch(qint64 moment, const QString& program, const QString& title,
                             SqliteDatabase& history) const;
    // Whether the answer has each program's titles. Those of a longer range are read only when they are wanted,
    // because nothing shorter than the sums by day has them.
    bool hasTitles() const { return days.days() <= kMostDaysWithTitles; }

    CalendarRange days;
    // Only this piece of one day: from the first moment to the second, in milliseconds since 1970.
    std::optional<std::pair<qint64, qint64>> piece;
    // As ReportRequest has them.
    QString search;
    std::optional<QString> project;
    // For the rules and the projects.
    Folders folders;
    // What the file does not have yet.
    std::vector<HistoryRow> unwritten;

private:
    static constexpr int kMostDaysWithTitles = 62;
};
