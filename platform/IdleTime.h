// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QString>

// One reading of the time since the user's last input.
struct IdleReading {
    enum class State {
        // There is no display at all.
        NoSystem,
        // There is a display that has no input of its own.
        NoDevice,
        // The display did not answer, or not yet.
        NoProperties,
        Read,
    };
    State state = State::NoProperties;
    // Nanoseconds since the last input: an integer (signed), or data whose first 8 bytes are an unsigned integer in
    // the machine's byte order. Absent when the display does not count.
    PropertyListValue idleNanoseconds;
};

// Asks the desktop how long the user has not touched anything. One round trip at most. Main thread only.
class IdleTime {
public:
    virtual ~IdleTime() = default;
    virtual IdleReading read() = 0;
    // The technology and why it was chosen.
    virtual QString describe() const = 0;
};
