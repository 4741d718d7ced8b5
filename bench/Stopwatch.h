// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

// Measures how long some work takes: one run to warm up, then five.
struct Measure {
    double minimum;
    double median;
};

// How often measured() calls the work.
inline constexpr int kMeasuredCalls = 6;

inline double processCpuMs() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

inline double wallMs() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// `clock` answers milliseconds. Only `work` is measured; `prepare` runs before each run.
template<class Prepare, class Work>
Measure measuredAfter(double (*clock)(), Prepare&& prepare, Work&& work) {
    std::vector<double> runs;
    for (int i = 0; i < kMeasuredCalls; ++i) {
        prepare();
        const double start = clock();
        work();
        if (i > 0)
            runs.push_back(clock() - start);
    }
    std::ranges::sort(runs);
    return {runs.front(), runs[2]};
}

template<class Work>
Measure measured(double (*clock)(), Work&& work) {
    return measuredAfter(
        clock, [] {}, work);
}

// A line of a table of milliseconds, each with its budget; and the table's heading.
inline void printAgainst(double limit, const char* what, Measure measure) {
    std::printf("%-52s %7.1f ms  %7.1f ms  (at most %.0f)\n", what, measure.minimum, measure.median, limit);
}

inline void printHead() {
    std::printf("%-52s %10s  %10s\n", "", "minimum", "median");
}
