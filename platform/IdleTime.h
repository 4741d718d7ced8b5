// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"

#include <QString>

#include <chrono>
#include <optional>

// One reading of the time since the user's last input.
struct IdleReading {
    // Why there is no time.
    enum class Lack {
        // The display does not count it.
        NotCounted,
        // The display has not answered, or not yet.
        NoAnswer,
        // There is a display that has no input of its own.
        NoInput,
        // There is no display at all.
        NoDisplay,
    };

    IdleReading(std::chrono::nanoseconds time)
        : idle(time) {}
    IdleReading(Lack why)
        : lack(why) {}

    std::optional<std::chrono::nanoseconds> idle;
    // Only if the time is absent.
    Lack lack = Lack::NotCounted;
};

// For how long the user has not touched anything, as the desktop counts it. Main thread only.
class IdleTime {
public:
    virtual ~IdleTime() = default;
    // At most one round trip.
    virtual IdleReading read() = 0;
    // Calls `hearer` when there is input after half a minute without any; some desktops tell after shorter pauses as
    // well. The next reading says so.
    Subscription observeInput(News::Hearer hearer) const { return m_input.observe(std::move(hearer)); }
    // Whether the desktop tells of that now. Otherwise only reading shows that somebody is back.
    virtual bool tellsOfInput() const { return false; }
    // The technology and why it was chosen.
    virtual QString describe() const = 0;

protected:
    News m_input;
};
