// SPDX-License-Identifier: MIT
// The cost of keeping a history: a tick, a write, a launch, and the bytes of a year of a busy person.
#include "Classes/history/HistoryDebts.h"
#include "Classes/history/HistoryKeeper.h"
#include "Classes/history/HistoryRecorder.h"
#include "Classes/store/TimeStoreWindow.h"
#include "bench/BusyPerson.h"
#include "tests/fakes/TestEngine.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr std::int64_t kFirstDay = 1'451'635'200'000;

void year(benchmark::State& state) {
    for (auto _ : state) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("History.sqlite"));
        {
            HistoryKeeper keeper(path);
            BusyPerson person(kFirstDay);
            for (int day = 0; day < BusyPerson::kDaysAYear; ++day)
                keeper.write(person.day(day));
        }
        SqliteDatabase file(path, SqliteDatabase::Mode::Read, 0);
        const double stretches = double(file.number("SELECT count(*) FROM stretches"));
        state.counters["bytes_a_stretch"] = double(QFileInfo(path).size()) / stretches;
        state.counters["sums_a_day"] =
            double(file.number("SELECT count(*) FROM days")) / BusyPerson::kDaysAYear;
        state.counters["MB"] = double(QFileInfo(path).size()) / 1e6;
    }
}

// Fifteen seconds with a new window in front every second.
void aWrite(benchmark::State& state) {
    const QTemporaryDir folder;
    HistoryKeeper keeper(folder.filePath(QStringLiteral("History.sqlite")));
    BusyPerson person(kFirstDay);
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
    const auto mail = std::make_shared<TimeStoreApp>(engine.store, QStringLiteral("Mail"));
    HistoryRecorder recorder(engine.fakes.clock);
    const QString title = QStringLiteral("(3) The title of a window as long as they are");
    for (auto _ : state) {
        const Instant from = engine.fakes.clock.instant();
        engine.fakes.clock.advance(std::chrono::milliseconds(100));
        recorder.credited({from, engine.fakes.clock.instant(), mail, nullptr, title, Presence::Work});
    }
}

void aLaunch(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("History.sqlite"));
    {
        HistoryKeeper keeper(path);
        BusyPerson person(kFirstDay);
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
