// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <chrono>

// All readings of time go through this class, so that tests can turn the clock by hand. Outlives everything
// that reads it.
class Clock {
public:
    virtual ~Clock() = default;

    // The wall clock. The user or the network may set it.
    virtual Date now() const = 0;
    // Time since an unspecified start. It only moves on, and stands still while the machine sleeps.
    virtual std::chrono::nanoseconds monotonic() const = 0;
    // The same, but it also runs while the machine sleeps.
    virtual std::chrono::nanoseconds sinceBoot() const = 0;

    // monotonic(), in the type between which lengths are measured.
    Instant instant() const { return Instant(monotonic()); }
};

// The clocks of the machine: CLOCK_REALTIME, CLOCK_MONOTONIC and CLOCK_BOOTTIME.
class SystemClock : public Clock {
public:
    Date now() const override;
    std::chrono::nanoseconds monotonic() const override;
    std::chrono::nanoseconds sinceBoot() const override;
};
