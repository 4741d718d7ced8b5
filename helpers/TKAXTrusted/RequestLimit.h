// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"

#include <QHash>

#include <deque>
#include <sys/types.h>

// Limits how often a user may ask: a person asks once or twice, so a program that asks on and on is refused.
// `clock` outlives it.
class RequestLimit {
public:
    static constexpr std::size_t kMostRequests = 6;
    static constexpr std::chrono::minutes kPeriod{1};

    explicit RequestLimit(const Clock& clock)
        : m_clock(clock) {}

    // Counts a request; false if there have been too many within the period.
    bool admit(uid_t user);

private:
    const Clock& m_clock;
    QHash<uid_t, std::deque<std::chrono::nanoseconds>> m_times;
};
