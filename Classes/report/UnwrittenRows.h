// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"
#include "Classes/report/ReportNames.h"

#include <QSet>

// Rows that are newer than the file, as stretches: what they name has numbers below zero, so that they go with those
// of the file.
class UnwrittenRows {
public:
    UnwrittenRows() = default;
    explicit UnwrittenRows(const std::vector<HistoryRow>& rows);

    const std::vector<RecordedStretch>& stretches() const { return m_stretches; }
    // Whether a row that begins at this moment (milliseconds since 1970) is here, so that the file's is out of date.
    bool replace(qint64 start) const { return m_starts.contains(start); }

    // What numbers below zero stand for.
    const QString& program(qint64 number) const { return m_rows[indexOf(number)].program; }
    const QString& title(qint64 number) const { return m_rows[indexOf(number)].title; }
    const RowTimer& timer(qint64 number) const { return m_rows[indexOf(number)].timer; }

private:
    static std::size_t indexOf(qint64 number) { return std::size_t(-number - 1); }

    std::vector<HistoryRow> m_rows;
    std::vector<RecordedStretch> m_stretches;
    QSet<qint64> m_starts;
};
