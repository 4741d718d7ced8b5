// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Engine.h"
#include "Classes/record/TimeDatabase.h"
#include "bench/ProcessFigures.h"
#include "bench/SampleAccount.h"
#include "bench/Stopwatch.h"
#include "tests/desktop/harness/TemporaryHome.h"
#include "tests/desktop/harness/WaitFor.h"
#include "tests/fakes/FakePlatform.h"

#include <vector>

// The cost of a running program, compared with a minimal program in the same minute.

inline constexpr std::chrono::seconds kRun{12};
inline constexpr int kRuns = 5;

// Writes a database of this size where the program looks for it.
inline void writeAccount(const TemporaryHome& home, int applications, int windows) {
    FakePlatform fakes;
    Engine engine(fakes.platform, {});
    Folders folders = fakes.folders;
    folders.applicationSupport = home.dataFolder() + QStringLiteral("/Ticklog");
    TimeDatabase database(engine.tracker(), engine.services().store, fakes.defaults, folders, {});
    engine.tracker().setArrayRepresentation(SampleAccount(applications, windows).entries());
    static_cast<void>(database.saveSettingsToDiskAtURL());
}

inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// Medians of the runs, per minute, of a program and of the minimal one.
struct Cost {
    double cpu;
    double wakeUps;
    double floorCpu;
    double floorWakeUps;
};

inline Cost measureCost(qint64 program, qint64 floor, const std::function<void()>& eachSecond) {
    std::array<std::vector<double>, 4> figures;
    for (int run = 0; run < kRuns; ++run) {
        const ProcessFigures before = ProcessFigures::of(program);
        const ProcessFigures floorBefore = ProcessFigures::of(floor);
        for (std::chrono::seconds passed{0}; passed < kRun; ++passed) {
            if (eachSecond)
                eachSecond();
            static_cast<void>(passTime(std::chrono::seconds(1)));
        }
        const ProcessFigures after = ProcessFigures::of(program);
        const ProcessFigures floorAfter = ProcessFigures::of(floor);
        const double perMinute = 60.0 / double(kRun.count());
        figures[0].push_back((after.cpuMilliseconds - before.cpuMilliseconds) * perMinute);
        figures[1].push_back((after.wakeUps - before.wakeUps) * perMinute);
        figures[2].push_back((floorAfter.cpuMilliseconds - floorBefore.cpuMilliseconds) * perMinute);
        figures[3].push_back((floorAfter.wakeUps - floorBefore.wakeUps) * perMinute);
    }
    return {median(figures[0]), median(figures[1]), median(figures[2]), median(figures[3])};
}

inline void printCost(const char* name, const Cost& cost, double budget) {
    std::printf(
        "%-34s %6.1f CPU ms/min (budget %3.0f)  floor %5.1f  ratio %4.1f | %5.0f wake-ups/min, floor %4.0f\n",
        name, cost.cpu, budget, cost.floorCpu, cost.cpu / cost.floorCpu, cost.wakeUps, cost.floorWakeUps);
    std::fflush(stdout);
}
