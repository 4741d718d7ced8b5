// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFile.h"

// Keeps the history's file in order: makes it, mends it, sets it aside. Knows nothing but the file. It waits
// for the disk, so it works on a thread of its own; never two calls at a time.
class HistoryKeeper {
public:
    enum class State { Written, Unwritten, Newer };
    struct Report {
        State state = State::Written;
        // Why nothing could be written, for the log.
        QString why;
        // Where a damaged file was set aside, and how many stretches were rescued from it.
        std::optional<QString> setAside;
        int takenOver = 0;
        // The file is not the one of before, so it does not know what the store lacks.
        bool isStrange = false;
        // Another program has the file. It will be free soon.
        bool isBusy = false;
        // Another program reads, so what was forgotten is still in SQLite's journal.
        bool isToEmpty = false;
        // What a person said about the past is in the file now, or what was to be forgotten is not any more.
        bool isAmended = false;
        // The number of the last amendment in the file. A clock that was wrong may have made it later than now.
        std::int64_t lastAmended = 0;
        // Which timers have a past, whenever some may have lost theirs.
        std::optional<std::unordered_set<Identity>> timers;
    };

    explicit HistoryKeeper(QString path)
        : m_path(std::move(path)) {}

    const QString& path() const { return m_path; }
    // Writes the whole batch or nothing. `age` deletes what is older;
    // `dayBegins` sets the hour at which days begin, for the past as well.
    Report write(const HistoryBatch& batch, const std::optional<HistoryAge>& age = std::nullopt,
                 std::optional<int> dayBegins = std::nullopt);
    // Removes the file and all that lies beside it.
    Report remove();
    // Moves everything into the one file, so that nothing lies beside it until the next write. Other programs
    // that have it open may prevent that.
    Report close();

private:
    void attempt(const HistoryBatch& batch, const std::optional<HistoryAge>& age,
                 std::optional<int> dayBegins, Report& report);
    void setAside(Report& report);

    QString m_path;
    std::optional<HistoryFile> m_file;
    HistoryFile::Written m_written;
    bool m_isSwept = false;
    // The file was exchanged, and no write has told so yet.
    bool m_isOther = false;
};
