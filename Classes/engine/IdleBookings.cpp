// SPDX-License-Identifier: MIT
#include "Classes/engine/IdleBookings.h"

#include <algorithm>

// Where absences are never noticed, locks of the screen would pile up here without end. No absence has as
// many as this.
static constexpr std::size_t kMost = 1000;

void IdleBookings::add(Instant from, Instant to) {
    if (!m_stretches.empty() && from <= m_stretches.back().to) {
        m_stretches.back().to = std::max(to, m_stretches.back().to);
        return;
    }
    if (m_stretches.size() == kMost)
        m_stretches.erase(m_stretches.begin());
    m_stretches.push_back({from, to});
}

void IdleBookings::settle(Instant from, Instant to) {
    m_stretches.assign(1, {from, to});
}

Seconds IdleBookings::bookedSince(Instant since) const {
    Seconds booked = 0;
    for (const Stretch& stretch : m_stretches)
        if (stretch.to > since)
            booked += secondsBetween(std::max(stretch.from, since), stretch.to);
    return booked;
}
