// SPDX-License-Identifier: MIT
#include "helpers/TKAXTrusted/RequestLimit.h"

bool RequestLimit::admit(uid_t user) {
    const std::chrono::nanoseconds now = m_clock.sinceBoot();
    auto& times = m_times[user];
    while (!times.empty() && now - times.front() >= kPeriod)
        times.pop_front();
    if (times.size() >= kMostRequests)
        return false;
    times.push_back(now);
    return true;
}
