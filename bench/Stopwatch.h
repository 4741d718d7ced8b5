// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

// How long a piece of work takes: one run to warm up, then five.
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

// `clock` answers milliseconds.
template<class Work>
Measure measured(double (*clock)(), Work&& work) {
    std::vector<double> runs;
    work();
    for (int i = 1; i < kMeasuredCalls; ++i) {
        const double start = clock();
        work();
        runs.push_back(clock() - start);
    }
    std::ranges::sort(runs);
    return {runs.front(), runs[2]};
}
