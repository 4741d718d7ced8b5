// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <functional>

// The fastest and the middle one of five runs, in milliseconds.
struct Timing {
    double minimum;
    double median;
};

// CPU time of this process in milliseconds.
inline double cpuMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

inline double wallMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

// One run to warm up and five that count, by the given clock.
inline Timing measure(const std::function<double()>& clock, const std::function<void()>& work) {
    work();
    std::array<double, 5> runs{};
    for (double& run : runs) {
        const double start = clock();
        work();
        run = clock() - start;
    }
    std::ranges::sort(runs);
    return {runs.front(), runs[runs.size() / 2]};
}
