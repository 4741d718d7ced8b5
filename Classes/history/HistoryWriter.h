// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryKeeper.h"
#include "Classes/record/BackgroundMove.h"

#include <deque>

// Brings batches to the history's file, one after the other, each on a thread of its own that nobody waits
// for. A batch that cannot be written waits; waiting batches are joined before they take too much memory.
// Main thread only.
class HistoryWriter {
public:
    // Called after each try.
    using Told = std::function<void(const HistoryKeeper::Report&)>;

    // `runLoop` outlives this.
    HistoryWriter(RunLoop& runLoop, const QString& path, Told told, BackgroundMove::Background background);
    HistoryWriter(const HistoryWriter&) = delete;
    HistoryWriter& operator=(const HistoryWriter&) = delete;
    ~HistoryWriter();

    // The batch to which news is added.
    HistoryBatch& next();
    // Adds a change after all that is already there.
    void change(HistoryChange::Any what);
    // Adds news about a store. Its place among other changes does not matter, only among other news about
    // stores.
    void noteStore(HistoryChange::Any what);
    // The next write deletes what is older.
    void setAge(const HistoryAge& age) { m_age = age; }
    // The next write sets the hour at which days begin.
    void setDayBegins(int hour) { m_dayBegins = hour; }
    // Starts a write unless one is under way.
    void write();
    // Forgets what waits, and removes the file once the write under way has ended.
    void removeFile();
    // The program ends: writes what waits and closes the file. Waits for the disk for at most `limit` each
    // time.
    void finish(std::chrono::milliseconds limit);

    // Whether a write is under way.
    bool isWriting() const { return m_flight != nullptr; }
    // How many rows wait.
    std::size_t waiting() const;
    // Whether something that waits is to be forgotten.
    bool hasToForget() const;
    // The rows that may not be in the file yet, by serial numbers.
    std::map<std::uint64_t, HistoryRow> unwritten() const;

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
    std::optional<HistoryAge> m_age;
    int m_dayBegins = 0;
    bool m_isToBeRemoved = false;
    // While this is set, the first waiting batch is being written.
    std::shared_ptr<Flight> m_flight;
    // Begins at a random number, so that two programs never use the same.
    std::int64_t m_lastNumber;
    std::shared_ptr<Shared> m_shared;
};
