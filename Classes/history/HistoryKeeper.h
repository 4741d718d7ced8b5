// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFile.h"

// Keeps the history's file in order, whatever befalls it: what knows the file and nothing else. It waits for the disk, and
// so works on a thread of its own; never two calls at a time.
class HistoryKeeper {
public:
    enum class State { Written, Unwritten, Newer };
    struct Report {
        State state = State::Written;
        // For the log: why it is not written.
        QString why;
        // The name under which a damaged file was set aside, and how many stretches were taken over from it.
        std::optional<QString> setAside;
        int takenOver = 0;
    };

    explicit HistoryKeeper(QString path)
        : m_path(std::move(path)) {}

    const QString& path() const { return m_path; }
    // All of it or nothing. With `oldest` (milliseconds since 1970), what is older goes; with `dayBegins`, days begin at
    // that hour of the clock, those of the past as well.
    Report write(const HistoryBatch& batch, std::optional<std::int64_t> oldest = std::nullopt,
                 std::optional<int> dayBegins = std::nullopt);
    // Removes the file and what belongs to it, so that there is none.
    Report remove();
    // Has all of it in the one file, with nothing beside it, until it is written to again. Other programs may hinder that.
    Report close();

private:
    void attempt(const HistoryBatch& batch, std::optional<std::int64_t> oldest, std::optional<int> dayBegins);
    void setAside(Report& report);

    QString m_path;
    std::optional<HistoryFile> m_file;
    HistoryFile::Written m_written;
    bool m_isSwept = false;
};
