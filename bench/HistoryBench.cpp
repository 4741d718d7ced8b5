// SPDX-License-Identifier: MIT
// What it costs to keep a history: a tick, a write, a launch, and the bytes of a year. A busy person: 1,500 stretches a day
// on 250 days, of 40 programs and 30,000 titles, of which 200 on a day, the first ones more often than the last.
#include "Classes/history/HistoryDebts.h"
#include "Classes/history/HistoryKeeper.h"
#include "Classes/history/HistoryRecorder.h"
#include "Classes/store/TimeStoreWindow.h"
#include "tests/fakes/TestEngine.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

namespace {

constexpr std::int64_t kFirstDay = 1'451'635'200'000;
constexpr std::int64_t kDay = 86'400'000;

class Person {
public:
    HistoryBatch day(int number) {
        HistoryBatch batch;
        std::vector<int> titles;
        for (int i = 0; i < 200; ++i)
            titles.push_back(int(m_random() % 30'000));
        std::int64_t at = kFirstDay + number * kDay * 365 / 250 / kDay * kDay + 8 * 3'600'000;
        std::exponential_distribution<double> length(1.0 / 18'000);
        std::geometric_distribution<int> which(0.02);
        for (int i = 0; i < 1500; ++i) {
            const std::int64_t hour = 3'600'000 - at % 3'600'000;
            const std::int64_t time = std::min(hour, 500 + std::int64_t(length(m_random)));
            const int title = titles[std::size_t(which(m_random) % 200)];
            batch.rows[++m_serial] = {
                .start = at,
                .length = time,
                .offset = 60,
                .program = QStringLiteral("Program %1").arg(title % 40),
                .title = QStringLiteral("The title of a window as long as they are, number %1").arg(title),
                .timer = {},
                .presence = RowPresence::Work};
            at += time;
        }
        batch.settledBefore = m_serial + 1;
        return batch;
    }

private:
    std::mt19937 m_random{7};
    std::uint64_t m_serial = 0;
};

void year(benchmark::State& state) {
    for (auto _ : state) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("History.sqlite"));
        {
            HistoryKeeper keeper(path);
            Person person;
            for (int day = 0; day < 250; ++day)
                keeper.write(person.day(day));
        }
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 0);
        const double stretches = double(file.number("SELECT count(*) FROM stretches"));
        state.counters["bytes_a_stretch"] = double(QFileInfo(path).size()) / stretches;
        state.counters["sums_a_day"] = double(file.number("SELECT count(*) FROM days")) / 250;
        state.counters["MB"] = double(QFileInfo(path).size()) / 1e6;
    }
}

// Fifteen seconds in which the focus changes each second.
void aWrite(benchmark::State& state) {
    const QTemporaryDir folder;
    HistoryKeeper keeper(folder.filePath(QStringLiteral("History.sqlite")));
    Person person;
    for (int day = 0; day < 20; ++day)
        keeper.write(person.day(day));
    HistoryBatch all = person.day(20);
    for (auto _ : state) {
        HistoryBatch batch;
        for (int i = 0; i < 15; ++i) {
            if (all.rows.empty())
                all = person.day(20);
            batch.rows.insert(all.rows.extract(all.rows.begin()));
        }
        keeper.write(batch);
    }
}

void aTick(benchmark::State& state) {
    TestEngine engine;
    const TimeStoreApp mail(engine.store, QStringLiteral("Mail"));
    HistoryRecorder recorder(engine.fakes.clock);
    const QString title = QStringLiteral("(3) The title of a window as long as they are");
    for (auto _ : state) {
        const Instant from = engine.fakes.clock.instant();
        engine.fakes.clock.advance(std::chrono::milliseconds(100));
        recorder.credited({from, engine.fakes.clock.instant(), &mail, nullptr, title, Presence::Work});
    }
}

void aLaunch(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("History.sqlite"));
    {
        HistoryKeeper keeper(path);
        Person person;
        for (int day = 0; day < 20; ++day)
            keeper.write(person.day(day));
        keeper.write({.changes = {HistoryChange::StoreUnknown{QByteArray("store")}},
                      .rows = {},
                      .owed = {},
                      .settledBefore = 0});
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(HistoryDebts::of(path, QByteArray("store")).isKnown());
}

BENCHMARK(aTick);
BENCHMARK(aWrite)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(aLaunch)->Unit(benchmark::kMicrosecond);
BENCHMARK(year)->Unit(benchmark::kSecond)->Iterations(1)->MeasureProcessCPUTime();

} // namespace

BENCHMARK_MAIN();
