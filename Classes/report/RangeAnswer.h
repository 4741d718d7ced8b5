// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/ReportNames.h"

#include <QDate>

#include <optional>
#include <vector>

// What the history says about a range of time, as the window shows it. All lengths are milliseconds; names
// are those that the user sees.
struct RangeAnswer {
    // A program or a project with its time, and what it consists of: a program's titles, a project's
    // programs. The most time comes first. A stretch without a title counts for its program alone; a stretch
    // that belongs to several projects counts for each of them.
    struct Entry {
        QString name;
        qint64 length = 0;
        std::vector<Entry> parts{};
        // A title that was given by hand to some of this time.
        bool isNamedByHand = false;
    };
    // What a piece was before it was changed by hand.
    struct Amended {
        // When it was changed last, in milliseconds since 1970.
        qint64 made;
        // Else there was nothing, or it was idle: time was booked.
        bool wasWork;
        // Those it had, where they were others.
        QStringList titles;
        QStringList projects;
    };
    // One stretch, for the picture of a day, of whatever presence: neighbours differ in something. In order of time,
    // and never overlapping.
    struct Piece {
        // Milliseconds since 1970, UTC.
        qint64 start = 0;
        qint64 length = 0;
        QString program;
        QString title;
        // In the sidebar's order; empty for none.
        QStringList projects;
        RecordedStretch::Presence presence = RecordedStretch::Presence::Work;
        // Absent for what is as it was measured.
        std::optional<Amended> amended{};

        qint64 end() const { return start + length; }
    };
    // A day, a week or a month, for the pictures of longer ranges. Those without work are left out.
    struct Bar {
        // Its first day.
        QDate first;
        // The most time of the whole range comes first, not of this bar.
        std::vector<Entry> programs;
        std::vector<Entry> projects;
    };

    // Work alone, and what was booked by hand.
    std::vector<Entry> programs;
    std::vector<Entry> projects;
    // The time of each project, in the sidebar's order, whatever it is called; and of what belongs to none.
    std::vector<qint64> ofProjects;
    qint64 ofNoProject = 0;
    qint64 work = 0;
    // For a day or a part of one; else empty.
    std::vector<Piece> pieces;
    // For longer ranges; else empty.
    std::vector<Bar> bars;
};
