// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"

// Rows that were forgotten and may be brought back, in memory only. They have the numbers that stood in the file
// for texts and timers; the file may use these numbers for others by now.
struct RemovedRows {
    // What a row is, or what it was before it was amended. Program 0: nothing is known of it.
    struct What {
        std::int64_t program;
        std::int64_t title;
        std::int64_t timer;
        std::int64_t presence;

        friend auto operator<=>(const What&, const What&) = default;
    };
    struct Before {
        std::int64_t made;
        What what;
    };
    struct Row {
        std::int64_t start;
        std::int64_t length;
        std::int64_t offset;
        What what;
        std::vector<Before> before;
    };
    struct Timer {
        RowTimer timer;
        // As in the file: 1 for a window, 2 for an application.
        std::int64_t deleted;
    };

    // As the file's own rows do when that happens to them.
    void follow(const HistoryChange::Moved& change);
    void follow(const HistoryChange::Deleted& change);
    void follow(const HistoryChange::Forgotten& change);

    std::vector<Row> rows;
    std::map<std::int64_t, QString> programs;
    std::map<std::int64_t, QString> titles;
    std::map<std::int64_t, Timer> timers;
    // The names of projects, by the bytes of their identities.
    std::map<QByteArray, QString> projects;
};

// What a person has forgotten and can bring back as long as this lives; nothing of it is on the disk. Main thread
// only.
struct ForgottenPieces {
    // Filled and read by the thread that writes, so not to be looked into. Absent once it cannot be brought back.
    std::shared_ptr<RemovedRows> removed;
    // What has happened to the history meanwhile.
    std::vector<HistoryChange::Later> since;
};
