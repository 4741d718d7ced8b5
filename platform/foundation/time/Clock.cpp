// SPDX-License-Identifier: MIT
#include "platform/foundation/time/Clock.h"

#include <ctime>

namespace {

std::chrono::nanoseconds read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

Date SystemClock::now() const {
    return std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
}

std::chrono::nanoseconds SystemClock::monotonic() const {
    return read(CLOCK_MONOTONIC);
}

std::chrono::nanoseconds SystemClock::sinceBoot() const {
    return read(CLOCK_BOOTTIME);
}
