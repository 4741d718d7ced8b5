// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Sqlite.h"
#include "Classes/report/RangeAnswer.h"

#include <set>

// What was changed by hand in a range of time.
class AmendedStretches {
public:
    // From the first moment to just before the second, in milliseconds since 1970. Throws SqliteError.
    static AmendedStretches in(SqliteDatabase& history, qint64 from, qint64 to, const ReportNames& names);

    // What was changed in a piece of the range; absent for nothing.
    std::optional<RangeAnswer::Amended> in(qint64 from, qint64 to) const;
    // Whether this title was given by hand to time of the program.
    bool haveNamed(const QString& program, const QString& title) const {
        return m_named.contains({program, title});
    }

private:
    struct Stretch {
        qint64 start;
        qint64 end;
        RangeAnswer::Amended amended;
    };

    // In order of time.
    std::vector<Stretch> m_stretches;
    std::set<std::pair<QString, QString>> m_named;
};
