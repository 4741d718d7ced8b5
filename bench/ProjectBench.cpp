// SPDX-License-Identifier: MIT
// Projects in a large account: filling one, computing the colours, freezing, saving, and a tick for a member.
#include "Classes/engine/Engine.h"
#include "Classes/projects/ProjectList.h"
#include "Classes/projects/ProjectNodes.h"
#include "Classes/store/TimeStoreCategory.h"
#include "bench/SampleAccount.h"
#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <new>
#include <random>

namespace {

std::size_t allocations = 0;

constexpr int kApplications = 500;
constexpr int kWindows = 20'000;

// An account and projects whose members are drawn from its windows, the same at every run.
struct Account {
    Account() {
        SampleAccount account(kApplications, kWindows);
        engine.tracker().setArrayRepresentation(account.entries());
        for (const auto& app : engine.tracker().fullTimeSet())
            for (const auto& window : app->windows())
                windows.push_back(window->uuid().value());
    }

    std::vector<Identity> members(std::size_t count) {
        std::vector<Identity> drawn;
        std::ranges::sample(windows, std::back_inserter(drawn), std::ptrdiff_t(count), random);
        std::ranges::shuffle(drawn, random);
        return drawn;
    }

    void makeProjects(int projects, std::size_t membersEach) {
        PropertyListArray records;
        for (int i = 0; i < projects; ++i) {
            ProjectRecord record;
            record.setLabel(QStringLiteral("Project %1").arg(i));
            record.setColorTag(1 + i % 6);
            record.addMembers(members(membersEach));
            records.push_back(record.entries());
        }
        list.setProjects(records);
    }

    FakePlatform fakes;
    Engine engine{fakes.platform, {}};
    ProjectList list{engine.services().store, fakes.defaults, fakes.folders.documents};
    ProjectNodes nodes{engine.services().store};
    std::vector<Identity> windows;
    std::mt19937 random{20261121};
};

void BM_FillProject(benchmark::State& state) {
    Account account;
    ProjectRecord record;
    record.addMembers(account.members(std::size_t(state.range(0))));
    const auto node = account.nodes.timeStoreCategoryForProjectDict(record);
    for (auto _ : state)
        account.engine.tracker().updateTimeStoreCategory(*node, record.flattenedMembers());
    if (node->children()->size() != record.members().size())
        state.SkipWithError("not all members were found");
}

void BM_ReverseCache(benchmark::State& state) {
    Account account;
    account.makeProjects(int(state.range(0)), std::size_t(state.range(1)));
    for (auto _ : state)
        account.list.reloadReverseProjectCache();
}

void BM_SaveProjects(benchmark::State& state) {
    Account account;
    account.makeProjects(int(state.range(0)), std::size_t(state.range(1)));
    for (auto _ : state)
        account.list.saveData();
}

void BM_Snapshot(benchmark::State& state) {
    Account account;
    account.makeProjects(int(state.range(0)), std::size_t(state.range(1)));
    for (auto _ : state)
        benchmark::DoNotOptimize(account.list.snapshot());
}

// The busiest application, whose windows are all in several projects.
void BM_FreezeApplication(benchmark::State& state) {
    Account account;
    account.makeProjects(int(state.range(0)), std::size_t(state.range(1)));
    std::size_t next = 0;
    for (auto _ : state)
        account.engine.tracker().branchNode(*account.engine.tracker().fullTimeSet().at(next++));
}

void BM_MemberTick(benchmark::State& state) {
    Account account;
    ProjectRecord record;
    record.addMembers(account.members(2'000));
    const auto node = account.nodes.timeStoreCategoryForProjectDict(record);
    account.engine.tracker().updateTimeStoreCategory(*node, record.flattenedMembers());
    int told = 0;
    const auto watching = node->observe(kActiveTimeStringKey, [&](const ObservedChange&) { ++told; });
    TimeStoreNode& member = node->children()->at(1'000)->node();
    member.addTimeInterval(0.1);
    const std::size_t before = allocations;
    for (auto _ : state)
        member.addTimeInterval(0.1);
    state.counters["allocations"] =
        benchmark::Counter(double(allocations - before), benchmark::Counter::kAvgIterations);
    if (told != int(state.iterations()) + 1)
        state.SkipWithError("a change was not passed on");
}

BENCHMARK(BM_FillProject)
    ->ArgName("members")
    ->Arg(20)
    ->Arg(2'000)
    ->Arg(15'000)
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReverseCache)
    ->ArgNames({"projects", "members"})
    ->Args({20, 20})
    ->Args({200, 100})
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveProjects)
    ->ArgNames({"projects", "members"})
    ->Args({20, 20})
    ->Args({200, 100})
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Snapshot)
    ->ArgNames({"projects", "members"})
    ->Args({200, 100})
    ->Repetitions(5)
    ->ReportAggregatesOnly()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_FreezeApplication)
    ->ArgNames({"projects", "members"})
    ->Args({200, 100})
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MemberTick)->Repetitions(5)->ReportAggregatesOnly()->Unit(benchmark::kNanosecond);

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
