// SPDX-License-Identifier: MIT
#pragma once

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

// Asks the desktop for how long the user has not touched anything. At most one round trip. Main thread only.
class IdleTime {
public:
    virtual ~IdleTime() = default;
    virtual IdleReading read() = 0;
    // The technology and why it was chosen.
    virtual QString describe() const = 0;
};
