// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"
#include "platform/foundation/time/Date.h"

#include <vector>

class SqliteDatabase;
class TimeTracker;

// After a crash: the time that the history knows of and the store lacks.
class HistoryDebts {
public:
    // Finds it by the digest of the store's content, which is empty where there is no store. Only reads; a
    // file that cannot be read owes nothing.
    static HistoryDebts of(const QString& path, const QByteArray& content);

    // Another program has the file at this moment, so nothing is known yet.
    bool isBusy() const { return m_isBusy; }
    // Whether the history knows this content. If not, nothing is owed.
    bool isKnown() const { return m_isKnown; }
    // The last generation from which something is owed.
    std::int64_t generation() const { return m_generation; }
    // Adds what is owed to the timers: found by identity, else by name, else made anew. Answers how many
    // seconds applications got.
    Seconds pay(TimeTracker& tracker) const;

private:
    struct Debt {
        OwedTime to;
        Seconds time;
    };

    // A window is called like its latest title, and debts are kept without their order: puts those of latest titles first.
    void putLatestTitlesFirst(SqliteDatabase& file);
    void payApplication(TimeTracker& tracker, const Debt& debt) const;
    void payWindow(TimeTracker& tracker, const Debt& debt) const;

    bool m_isBusy = false;
    bool m_isKnown = false;
    std::int64_t m_generation = 0;
    std::vector<Debt> m_debts;
};
