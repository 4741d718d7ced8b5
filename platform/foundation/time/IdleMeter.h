// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"

#include <optional>

// The time since the last input, where the desktop tells only that there has been none for a while, and that there is
// some again. Off by the delay with which that is told; and as long as the while is not over, it counts as none.
class IdleMeter {
public:
    // How long the while is that back ends ask to be told after: short beside the minute that is the least to matter,
    // and long enough that a pause for thought wakes nobody up.
    static constexpr std::chrono::milliseconds kThreshold = std::chrono::seconds(5);

    // The clock outlives the meter.
    explicit IdleMeter(const Clock& clock, std::chrono::milliseconds threshold = kThreshold)
        : m_clock(&clock)
        , m_threshold(threshold) {}

    // The while is just over.
    void noteIdle() { noteIdle(m_threshold); }
    // There has been no input for so long.
    void noteIdle(std::chrono::nanoseconds time) { m_lastInput = m_clock->monotonic() - time; }
    // There is input now.
    void noteInput() { m_lastInput.reset(); }

    std::chrono::nanoseconds idle() const {
        return m_lastInput ? m_clock->monotonic() - *m_lastInput : std::chrono::nanoseconds::zero();
    }

private:
    const Clock* m_clock;
    std::chrono::milliseconds m_threshold;
    // Absent while the user touches something every now and then.
    std::optional<std::chrono::nanoseconds> m_lastInput;
};
