// SPDX-License-Identifier: MIT
// A tick within the process: its cost does not depend on the number of windows, and grows with the
// applications only because their totals are added up.
#include "Classes/engine/Engine.h"
#include "Classes/engine/TimerControl.h"
#include "bench/SampleAccount.h"
#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

// Adds up the total as a shown window does, and shows it nowhere.
class SummingDisplay : public TimerDisplay {
public:
    explicit SummingDisplay(TimeTracker& tracker)
        : m_tracker(tracker) {}

    void showToggle(const QString&, const QString&) override {}

    void showRecordingBadge(bool) override {}

    void updateMenuIconState() override {}

    void refreshTimeSum() override { benchmark::DoNotOptimize(m_tracker.totalTime()); }

    void updateMenus() override {}

private:
    TimeTracker& m_tracker;
};

void BM_Tick(benchmark::State& state) {
    FakePlatform fakes;
    Engine engine(fakes.platform, {});
    SampleAccount account(int(state.range(0)), int(state.range(1)));
    engine.tracker().setArrayRepresentation(account.entries());
    SummingDisplay display(engine.tracker());
    TimerControl control(engine.tracker(), engine.services(), display, [] {});
    fakes.windowList.windows = {{.number = 7,
                                 .ownerProcessIdentifier = 100,
                                 .isOrdinary = true,
                                 .name = QStringLiteral("Document"),
                                 .ownerName = QStringLiteral("Program 0")}};
    fakes.frontApplication.switchTo(ApplicationRecord{QStringLiteral("Program 0"), {}, 100});
    control.startTimer();
    auto& source = engine.tracker().timeActivator();
    const auto tick = [&] { fakes.clock.advance(std::chrono::milliseconds(100)); };
    tick();
    control.computeTime();
    const std::size_t before = allocations;
    for (auto _ : state) {
        tick();
        source.mainWindowDidChange();
        control.computeTime();
    }
    state.counters["allocations"] =
        benchmark::Counter(double(allocations - before), benchmark::Counter::kAvgIterations);
}

BENCHMARK(BM_Tick)
    ->ArgNames({"applications", "windows"})
    ->Args({10, 1'000})
    ->Args({100, 1'000})
    ->Args({500, 1'000})
    ->Args({500, 20'000})
    ->Args({500, 100'000})
    ->Args({500, 400'000})
    ->Args({5'000, 20'000})
    ->Args({5'000, 400'000})
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMicrosecond);

} // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
