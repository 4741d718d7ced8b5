// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryKeeper.h"
#include "Classes/record/BackgroundMove.h"

#include <deque>

// What is to be written, on its way to the file: one batch after the other, each by a thread of its own that nobody waits
// for. What cannot be written waits, and is joined before it takes more memory than it may. Main thread only.
class HistoryWriter {
public:
    // Told after each try.
    using Told = std::function<void(const HistoryKeeper::Report&)>;

    // `runLoop` outlives this.
    HistoryWriter(RunLoop& runLoop, const QString& path, Told told, BackgroundMove::Background background);
    HistoryWriter(const HistoryWriter&) = delete;
    HistoryWriter& operator=(const HistoryWriter&) = delete;
    ~HistoryWriter();

    // Where what comes next goes in.
    HistoryBatch& next();
    // After all that is there already.
    void change(HistoryChange::Any what);
    // Beside it: the order matters only among the stores themselves.
    void noteStore(HistoryChange::Any what);
    // With the next write, what is older than this (milliseconds since 1970) goes.
    void setOldest(std::optional<std::int64_t> oldest) { m_oldest = oldest; }
    // Days begin at this hour of the clock, with the next write.
    void setDayBegins(int hour) { m_dayBegins = hour; }
    // Begins to write, unless it does already.
    void write();
    // Forgets what waits, and removes the file when what is on its way has been written.
    void removeFile();
    // Writes what waits and closes the file, at the end of the program, as far as the disk answers within `limit` each time.
    void finish(std::chrono::milliseconds limit);

    // Whether something is being written at the moment.
    bool isWriting() const { return m_flight != nullptr; }
    // Rows that wait.
    std::size_t waiting() const;

private:
    enum class Work { Write, Remove, Close };
    struct Flight;
    struct Shared;

    void start();
    void fly(Work work);
    bool await(std::chrono::milliseconds limit);
    void landed(const std::shared_ptr<Flight>& flight);
    void settle(const Flight& flight);
    static void shrink(HistoryBatch& batch);

    RunLoop& m_runLoop;
    Told m_told;
    BackgroundMove::Background m_background;
    std::deque<std::shared_ptr<HistoryBatch>> m_waiting;
    std::optional<std::int64_t> m_oldest;
    int m_dayBegins = 0;
    bool m_isToBeRemoved = false;
    // The first that waits is on its way.
    std::shared_ptr<Flight> m_flight;
    // Begins anywhere, so that no two programs mean the same by it.
    std::int64_t m_lastNumber;
    std::shared_ptr<Shared> m_shared;
};
