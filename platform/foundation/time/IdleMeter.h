// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"

#include <optional>

// Measures the time since the last input on desktops that report only two things: that there has been no
// input for a while, and that there is input again. It is late by the delay of the report; and until the
// first report, the idle time counts as zero.
class IdleMeter {
public:
    // The while after which back ends ask for the first report. Short compared with one minute, the shortest
    // setting; long enough that a pause for thought wakes nobody.
    static constexpr std::chrono::milliseconds kThreshold = std::chrono::seconds(5);

    // The clock outlives the meter.
    explicit IdleMeter(const Clock& clock, std::chrono::milliseconds threshold = kThreshold)
        : m_clock(&clock)
        , m_threshold(threshold) {}

    // There has been no input for `threshold`.
    void noteIdle() { noteIdle(m_threshold); }
    // There has been no input for this time.
    void noteIdle(std::chrono::nanoseconds time) { m_lastInput = m_clock->monotonic() - time; }
    // There is input now.
    void noteInput() { m_lastInput.reset(); }

    std::chrono::nanoseconds idle() const {
        return m_lastInput ? m_clock->monotonic() - *m_lastInput : std::chrono::nanoseconds::zero();
    }

private:
    const Clock* m_clock;
    std::chrono::milliseconds m_threshold;
    // Absent until there has been no input for a while.
    std::optional<std::chrono::nanoseconds> m_lastInput;
};
