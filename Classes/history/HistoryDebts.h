// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"

#include <vector>

// What the history knows of the timers and a store does not, after a crash.
class HistoryDebts {
public:
    // By the digest of the store's content, which is empty where there is no store. Reads and changes nothing; a file that
    // cannot be read knows nothing.
    static HistoryDebts of(const QString& path, const QByteArray& content);

    // Whether the history knows this content. What it does not know, lacks nothing.
    bool isKnown() const { return m_isKnown; }
    // The last that anything is owed from.
    std::int64_t generation() const { return m_generation; }
    // Adds what is owed to the timers: by identity, else by name, else as timers of their own. Answers the seconds that
    // applications got.
    Seconds pay(TimeTracker& tracker) const;

private:
    struct Debt {
        OwedTime to;
        Seconds time;
    };

    void payApplication(TimeTracker& tracker, const Debt& debt) const;
    void payWindow(TimeTracker& tracker, const Debt& debt) const;

    bool m_isKnown = false;
    std::int64_t m_generation = 0;
    std::vector<Debt> m_debts;
};
