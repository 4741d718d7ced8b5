// SPDX-License-Identifier: MIT
#include "Classes/history/HistoryWriter.h"

#include <QRandomGenerator>

#include <condition_variable>
#include <mutex>

namespace {

// Six hours with a new window in front every second, or a million characters of titles.
constexpr std::size_t kMostWaiting = 20'000;
constexpr qsizetype kMostText = 1'000'000;
constexpr std::int64_t kHour = 3'600'000;

bool areOfOneHour(const HistoryRow& a, const HistoryRow& b) {
    return a.offset == b.offset &&
           (a.start + a.offset * 60'000) / kHour == (b.start + b.offset * 60'000) / kHour;
}

} // namespace

// One batch on its way to the file.
struct HistoryWriter::Flight {
    HistoryKeeper::Report doneBy(HistoryKeeper& keeper) const {
        switch (work) {
        case Work::Write:
            return keeper.write(*batch, age, dayBegins);
        case Work::Remove:
            return keeper.remove();
        case Work::Close:
            break;
        }
        return keeper.close();
    }

    Work work;
    std::shared_ptr<HistoryBatch> batch;
    std::optional<HistoryAge> age;
    int dayBegins = 0;
    bool isDone = false;
    HistoryKeeper::Report report;
};

// Shared with the thread, which may finish after the writer is gone.
struct HistoryWriter::Shared {
    Shared(RunLoop& loop, const QString& path, HistoryWriter* writer)
        : runLoop(loop)
        , keeper(path)
        , owner(writer) {}

    void fly(const std::shared_ptr<Shared>& self, const std::shared_ptr<Flight>& flight) {
        HistoryKeeper::Report report = flight->doneBy(keeper);
        const std::scoped_lock lock(mutex);
        flight->report = std::move(report);
        flight->isDone = true;
        landed.notify_all();
        if (owner)
            runLoop.performSoon([self, flight] {
                // The owner lives and dies on the main thread, so this is safe.
                if (self->owner)
                    self->owner->landed(flight);
            });
    }

    RunLoop& runLoop;
    // Used by the one flight under way.
    HistoryKeeper keeper;
    std::mutex mutex;
    std::condition_variable landed;
    HistoryWriter* owner;
};

HistoryWriter::HistoryWriter(RunLoop& runLoop, const QString& path, Told told,
                             BackgroundMove::Background background)
    : m_runLoop(runLoop)
    , m_told(std::move(told))
    , m_background(std::move(background))
    , m_lastNumber(std::int64_t(QRandomGenerator::global()->generate64() >> 2))
    , m_shared(std::make_shared<Shared>(runLoop, path, this)) {}

HistoryWriter::~HistoryWriter() {
    const std::scoped_lock lock(m_shared->mutex);
    m_shared->owner = nullptr;
}

HistoryBatch& HistoryWriter::next() {
    // A batch that was tried may be in the file already, so it must not change.
    if (m_waiting.empty() || m_waiting.back()->number != 0)
        m_waiting.push_back(std::make_shared<HistoryBatch>());
    return *m_waiting.back();
}

void HistoryWriter::change(HistoryChange::Any what) {
    // A batch applies its changes before its rows, so what came before this change goes into a batch of its
    // own.
    if (!next().rows.empty() || !next().owed.empty())
        m_waiting.push_back(std::make_shared<HistoryBatch>());
    m_waiting.back()->changes.push_back(std::move(what));
}

void HistoryWriter::noteStore(HistoryChange::Any what) {
    auto& changes = next().changes;
    if (std::holds_alternative<HistoryChange::StorePlaced>(what))
        std::erase_if(changes, [](const HistoryChange::Any& change) {
            return std::holds_alternative<HistoryChange::StoreWhole>(change) ||
                   std::holds_alternative<HistoryChange::StorePlaced>(change);
        });
    changes.push_back(std::move(what));
}

void HistoryWriter::write() {
    for (const auto& batch : m_waiting)
        if (batch->number == 0)
            shrink(*batch);
    if (!m_flight)
        start();
}

void HistoryWriter::start() {
    if (m_waiting.empty() && !m_isToBeRemoved && !m_age)
        return;
    fly(std::exchange(m_isToBeRemoved, false) ? Work::Remove : Work::Write);
}

void HistoryWriter::fly(Work work) {
    if (work == Work::Write && m_waiting.empty())
        next();
    m_flight = std::make_shared<Flight>();
    m_flight->work = work;
    if (work == Work::Write) {
        m_flight->batch = m_waiting.front();
        if (m_flight->batch->number == 0)
            m_flight->batch->number = ++m_lastNumber;
        m_flight->age = m_age;
        m_flight->dayBegins = m_dayBegins;
    }
    m_background([shared = m_shared, flight = m_flight] { shared->fly(shared, flight); });
}

void HistoryWriter::landed(const std::shared_ptr<Flight>& flight) {
    // finish() has already waited for it and handled it.
    if (flight != m_flight)
        return;
    settle(*flight);
    m_told(flight->report);
    if (flight->report.state == HistoryKeeper::State::Written && !m_flight)
        start();
}

void HistoryWriter::settle(const Flight& flight) {
    m_flight.reset();
    if (flight.report.state != HistoryKeeper::State::Written)
        return;
    if (!m_waiting.empty() && m_waiting.front() == flight.batch)
        m_waiting.pop_front();
    if (flight.work == Work::Write && m_age == flight.age)
        m_age.reset();
}

void HistoryWriter::removeFile() {
    m_waiting.clear();
    m_isToBeRemoved = true;
    write();
}

void HistoryWriter::finish(std::chrono::milliseconds limit) {
    for (write(); m_flight; start())
        if (!await(limit))
            return;
    fly(Work::Close);
    await(limit);
}

// Whether the write under way ended in time. A disk that hangs is given up.
bool HistoryWriter::await(std::chrono::milliseconds limit) {
    const auto flight = m_flight;
    std::unique_lock lock(m_shared->mutex);
    if (!m_shared->landed.wait_for(lock, limit, [&] { return flight->isDone; }))
        return false;
    lock.unlock();
    settle(*flight);
    return flight->report.state == HistoryKeeper::State::Written;
}

std::size_t HistoryWriter::waiting() const {
    std::size_t count = 0;
    for (const auto& batch : m_waiting)
        count += batch->rows.size();
    return count;
}

bool HistoryWriter::hasToForget() const {
    return std::ranges::any_of(m_waiting, [](const auto& batch) {
        return std::ranges::any_of(batch->changes, [](const HistoryChange::Any& change) {
            return std::holds_alternative<HistoryChange::Forgotten>(change);
        });
    });
}

std::map<std::uint64_t, HistoryRow> HistoryWriter::unwritten() const {
    std::map<std::uint64_t, HistoryRow> rows;
    for (const auto& batch : m_waiting)
        for (const auto& [serial, row] : batch->rows)
            rows.insert_or_assign(serial, row);
    return rows;
}

// Joins neighbours within an hour; the longer one stands for both. The time stays the same.
void HistoryWriter::shrink(HistoryBatch& batch) {
    qsizetype text = 0;
    for (const auto& [serial, row] : batch.rows)
        text += row.title.size();
    if (text > kMostText)
        for (auto& [serial, row] : batch.rows)
            row.title.clear();
    if (batch.rows.size() <= kMostWaiting)
        return;
    for (auto row = batch.rows.begin(); row != batch.rows.end();) {
        auto& [serial, first] = *row;
        const auto second = ++row;
        if (second == batch.rows.end() || !areOfOneHour(first, second->second) ||
            first.start + first.length != second->second.start)
            continue;
        const std::int64_t length = first.length + second->second.length;
        if (second->second.length > first.length)
            std::swap(first.program, second->second.program), std::swap(first.title, second->second.title),
                std::swap(first.timer, second->second.timer),
                std::swap(first.presence, second->second.presence);
        first.length = length;
        row = batch.rows.erase(second);
    }
    // Rows that could not be joined must come from a broken clock: drops the oldest.
    while (batch.rows.size() > kMostWaiting)
        batch.rows.erase(batch.rows.begin());
}
