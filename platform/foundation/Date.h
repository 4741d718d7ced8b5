// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

// An instant of wall-clock time.
using Date = std::chrono::system_clock::time_point;

// A duration in seconds, as the account keeps it.
using Seconds = double;

// The seconds from `from` to `to`; negative when `to` is earlier.
inline Seconds secondsBetween(Date from, Date to) {
    return std::chrono::duration<double>(to - from).count();
}

// A date that lies `seconds` after the Unix epoch, to the resolution of the clock.
inline Date dateFromUnixSeconds(double seconds) {
    return Date(std::chrono::duration_cast<Date::duration>(std::chrono::duration<double>(seconds)));
}

inline double unixSeconds(Date date) {
    return std::chrono::duration<double>(date.time_since_epoch()).count();
}
