// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/RangeAnswer.h"

#include <QStringList>

#include <vector>

// How the times of a sheet are rounded. Only what is shown is rounded, never what was recorded.
struct SheetRounding {
    enum class To : unsigned char { Nearest, Up };
    // "Cell" rounds each project's day by itself. "Day" rounds the sum of a day and spreads it over the projects, so
    // that their rounded times add up to it.
    enum class Of : unsigned char { Cell, Day };

    // Minutes; 0 does not round.
    int minutes = 0;
    To to = To::Nearest;
    Of of = Of::Cell;
};

// Projects down, days across: what one sends to a client. All times are seconds. The sums are those of the cells that
// are shown, so whoever adds them up comes to the same. Only time that belongs to several projects is in each of their
// rows and counts once below: a day with such time has what was worked in it as its sum, rounded by itself, but never
// more than its cells have.
class TimeSheet {
public:
    struct Row {
        QString project;
        // One for each day.
        std::vector<qint64> cells;

        qint64 sum() const;
    };

    // The days from `first` to `last`, both included. `bars` are by day; a project without time in them has no row.
    TimeSheet(const std::vector<RangeAnswer::Bar>& bars, QDate first, QDate last,
              const SheetRounding& rounding);

    QDate first() const { return m_first; }
    int days() const { return m_days; }
    // The most time comes first.
    const std::vector<Row>& rows() const { return m_rows; }
    // Of each day, and of all of them.
    const std::vector<qint64>& sums() const { return m_sums; }
    qint64 sum() const;
    // What was measured, each second once, without rounding.
    qint64 measured() const { return m_measured; }
    // Whether any time is in several rows.
    bool hasSharedTime() const { return m_hasSharedTime; }

private:
    qint64 cellsOf(std::size_t day) const;
    // What was worked that day is `work` when it is rounded: no cell gets more.
    void round(std::size_t day, qint64 work, const SheetRounding& rounding);
    void spread(std::size_t day, qint64 work, const SheetRounding& rounding);

    QDate m_first;
    int m_days;
    std::vector<Row> m_rows;
    std::vector<qint64> m_sums;
    qint64 m_measured = 0;
    bool m_hasSharedTime = false;
};

// A time in seconds, rounded to multiples of the rounding's minutes. A multiple stays as it is.
qint64 roundedTime(qint64 seconds, const SheetRounding& rounding);
