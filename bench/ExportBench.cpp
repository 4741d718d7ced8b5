// SPDX-License-Identifier: MIT
// Exporting a large account, compared with a plain write of the same bytes.
#include "Classes/engine/Engine.h"
#include "Classes/record/CsvExport.h"
#include "bench/SampleAccount.h"
#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Account {
    explicit Account(int windows) {
        SampleAccount account(windows / 40, windows);
        engine.tracker().setArrayRepresentation(account.entries());
        timers = {engine.tracker().fullTimeSet().begin(), engine.tracker().fullTimeSet().end()};
    }

    QString table() { return CsvExport::text(timers, engine.tracker().totalTime()); }

    FakePlatform fakes;
    Engine engine{fakes.platform, {}};
    TimeStoreItem::Children timers;
};

void BM_Text(benchmark::State& state) {
    Account account(int(state.range(0)));
    qsizetype size = 0;
    for (auto _ : state)
        size = account.table().size();
    state.counters["MB"] = double(size) * 2 / 1e6;
    qsizetype lines = 2;
    for (const auto& timer : account.timers)
        lines += qsizetype(std::max<std::size_t>(1, timer->children()->size()));
    if (account.table().count(u'\n') != lines)
        state.SkipWithError("not every window has its line");
}

void BM_Export(benchmark::State& state) {
    Account account(int(state.range(0)));
    const QString path = account.fakes.home.filePath(QStringLiteral("times.csv"));
    for (auto _ : state)
        if (!CsvExport::write(account.timers, account.engine.tracker().totalTime(), path))
            state.SkipWithError("the table could not be written");
}

void BM_PlainWrite(benchmark::State& state) {
    Account account(int(state.range(0)));
    const QString table = account.table();
    const QByteArray path = account.fakes.home.filePath(QStringLiteral("times.csv")).toLocal8Bit();
    for (auto _ : state) {
        const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        if (::write(file, table.constData(), std::size_t(table.size()) * 2) != table.size() * 2)
            state.SkipWithError("the bytes could not be written");
        ::fsync(file);
        ::close(file);
    }
}

#define FOR_ACCOUNTS(work)                                                                                   \
    BENCHMARK(work)                                                                                          \
        ->ArgName("windows")                                                                                 \
        ->Arg(20'000)                                                                                        \
        ->Arg(400'000)                                                                                       \
        ->Repetitions(5)                                                                                     \
        ->ReportAggregatesOnly()                                                                             \
        ->UseRealTime()                                                                                      \
        ->Unit(benchmark::kMillisecond)

FOR_ACCOUNTS(BM_Text);
FOR_ACCOUNTS(BM_Export);
FOR_ACCOUNTS(BM_PlainWrite);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
