// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Whether a desktop that tells of changes by itself is still there: one that has nothing to tell and one that hangs look
// the same until they are asked. Main thread only.
class SignsOfLife {
public:
    virtual ~SignsOfLife() = default;

    // Calls `heard` after everything that the desktop tells or answers, and when it has gone. Replaces the last one;
    // empty ends it.
    virtual void setHeardHandler(std::function<void()> heard) = 0;
    // Asks for something that costs the desktop next to nothing. Its answer is a sign of life, however late it comes.
    virtual void askForSign() = 0;
};
