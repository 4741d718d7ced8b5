// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "platform/foundation/files/Folders.h"
#include "platform/foundation/time/Clock.h"

#include <QObject>

class QMenu;

// How long was worked today, as a line for the tray. Asked for when the menu opens, and every minute while the timer
// runs.
class HistoryToday {
public:
    // Empty while there is no history.
    using Told = std::function<void(const QString& line)>;
    struct Ground {
        History& history;
        RunLoop& runLoop;
        const Clock& clock;
        Folders folders;
        QMenu& menu;
        std::function<bool()> isCounting;
    };

    // Everything outlives this.
    HistoryToday(Ground ground, Told told);

private:
    void ask();

    Ground m_ground;
    Told m_told;
    std::unique_ptr<HistoryReader> m_reader;
    std::unique_ptr<RunLoopTimer> m_nextAsking;
    Subscription m_amendings;
    QObject m_receiver;
};
