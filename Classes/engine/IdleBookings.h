// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <vector>

// Remembers which stretches of time have been booked to Idle, so that each absence is booked once. The same
// absence may be noticed many times, because every window that comes up by itself looks like somebody at
// work.
class IdleBookings {
public:
    // The time from `from` to `to` is booked. Calls come in order of time; a stretch that begins where the
    // last one ended extends it.
    void add(Instant from, Instant to);
    // An absence that began at `from` was noticed at `to`, and all of it is booked now. Forgets what was
    // booked before `from`: nobody asks for that again.
    void settle(Instant from, Instant to);
    // How much of the time since `since` is booked.
    Seconds bookedSince(Instant since) const;

private:
    struct Stretch {
        Instant from;
        Instant to;
    };

    std::vector<Stretch> m_stretches;
};
