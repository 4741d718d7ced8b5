// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <chrono>

// Every reading of time goes through here, so that tests turn the clock by hand. Outlives all that reads it.
class Clock {
public:
    virtual ~Clock() = default;

    // The wall clock. It may be set back or forth by the user or the network.
    virtual Date now() const = 0;
    // Time since an unstated start that only runs forward and stands still while the machine sleeps.
    virtual std::chrono::nanoseconds monotonic() const = 0;
    // The same, but running on while the machine sleeps.
    virtual std::chrono::nanoseconds sinceBoot() const = 0;

    // monotonic(), as what lengths are taken between.
    Instant instant() const { return Instant(monotonic()); }
};

// The clocks of the machine: CLOCK_REALTIME, CLOCK_MONOTONIC and CLOCK_BOOTTIME.
class SystemClock : public Clock {
public:
    Date now() const override;
    std::chrono::nanoseconds monotonic() const override;
    std::chrono::nanoseconds sinceBoot() const override;
};
