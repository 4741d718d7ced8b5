// SPDX-License-Identifier: MIT
#include "Classes/report/NamesByHand.h"

#include "Classes/history/HistoryFile.h"
#include "platform/foundation/text/CleanText.h"

// More than anybody chooses from.
static constexpr qsizetype kMost = 200;

QStringList namesByHand(SqliteDatabase& history, QDate today) {
    SqliteQuery row(history,
                    "SELECT text FROM titles JOIN (SELECT title, max(day) AS last FROM days "
                    "WHERE day > ? AND presence = ? AND title <> 0 GROUP BY title) ON id = title "
                    "ORDER BY last DESC, text",
                    historyDay(today.addYears(-1)), std::int64_t(RowPresence::ByHand));
    QStringList names;
    while (names.size() < kMost && row.next())
        names << cleanText(row.text(0));
    return names;
}
