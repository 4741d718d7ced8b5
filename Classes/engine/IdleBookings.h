// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <vector>

// Which stretches of time have been booked to Idle, so that an absence is booked once: it may be noticed again and again,
// because each window that comes up meanwhile looks like somebody at work.
class IdleBookings {
public:
    // The time between is booked. Stretches come in the order of time; one that begins where the last ended goes on
    // from it.
    void add(Instant from, Instant to);
    // An absence that began at `from` was noticed at `to`: all of it is booked now, and what was before it can never
    // be asked for again.
    void settle(Instant from, Instant to);
    // How much of the time since then is booked.
    Seconds bookedSince(Instant since) const;

private:
    struct Stretch {
        Instant from;
        Instant to;
    };

    std::vector<Stretch> m_stretches;
};
