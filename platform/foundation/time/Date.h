// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

// A moment on the wall clock. In microseconds, because nanoseconds reach only from 1677 to 2262, and property
// lists have dates from the year 1: a mere time of day is stored as a time on the first day of all.
using Date = std::chrono::time_point<std::chrono::system_clock, std::chrono::microseconds>;

// A reading of the clock that only moves on and stands still while the machine sleeps. Lengths are measured
// between two of these, because the wall clock may be set at any time.
struct SteadyTime;
using Instant = std::chrono::time_point<SteadyTime, std::chrono::nanoseconds>;

// A length in seconds, as the account keeps it.
using Seconds = double;

inline Seconds secondsBetween(Instant from, Instant to) {
    return std::chrono::duration<Seconds>(to - from).count();
}

// The seconds from `from` to `to`; negative if `to` is earlier.
inline Seconds secondsBetween(Date from, Date to) {
    return std::chrono::duration<double>(to - from).count();
}
