// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PowerEvents.h"
#include "platform/foundation/time/Clock.h"

#include <optional>

// Notices sleep that nobody announced. If a clock that runs on during sleep has gained on one that does not,
// the machine has just slept: sleep and waking are told directly one after the other. It has no timer of its
// own, but looks when check() is called. The clock must outlive it.
class ClockJumpPower : public PowerEvents {
public:
    // A smaller difference only means that the clocks were not read at the same instant.
    static constexpr std::chrono::seconds kShortestSleep{1};

    explicit ClockJumpPower(const Clock& clock);

    // Call it from a tick that runs anyway. It reads two clocks.
    void check();

    bool tellsOfSleep() const override { return true; }
    QString describe() const override;

private:
    std::chrono::nanoseconds slept() const { return m_clock.sinceBoot() - m_clock.monotonic(); }

    const Clock& m_clock;
    // How long the machine has slept in all since it was started.
    std::chrono::nanoseconds m_slept;
};
