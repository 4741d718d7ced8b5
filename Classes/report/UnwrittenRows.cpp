// SPDX-License-Identifier: MIT
#include "Classes/report/UnwrittenRows.h"

UnwrittenRows::UnwrittenRows(const std::vector<HistoryRow>& rows)
    : m_rows(rows) {
    qint64 number = 0;
    for (const HistoryRow& row : m_rows) {
        m_starts.insert(row.start);
        --number;
        if (row.length > 0)
            m_stretches.push_back({row.start, row.length, int(row.offset), number, number, number,
                                   RecordedStretch::Presence(row.presence)});
    }
}
