// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <sys/resource.h>
#include <time.h>

// Processor time in seconds: the cost of something, whatever else the machine does.
namespace ProcessorTime {

// Used by a running program; 0 if it does not run.
inline double ofProcess(qint64 process) {
    clockid_t clock = 0;
    timespec used{};
    if (::clock_getcpuclockid(pid_t(process), &clock) != 0 || ::clock_gettime(clock, &used) != 0)
        return 0;
    return double(used.tv_sec) + double(used.tv_nsec) / 1e9;
}

// Used by all child processes that have ended.
inline double ofEnded() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

} // namespace ProcessorTime
