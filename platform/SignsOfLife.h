// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Whether a desktop that reports changes by itself still runs. A desktop that hangs looks like one without
// news until it is asked. Main thread only.
class SignsOfLife {
public:
    virtual ~SignsOfLife() = default;

    // Calls `heard` after each report or answer of the desktop, and when the desktop has gone. Replaces the
    // previous function; an empty one ends the calls.
    virtual void setHeardHandler(std::function<void()> heard) = 0;
    // Asks for something that costs the desktop next to nothing. The answer is a sign of life, however late.
    virtual void askForSign() = 0;
};
