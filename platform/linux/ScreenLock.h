// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <functional>

// Whether the screen is covered by a lock or a login window. Answers from memory. Main thread only.
class ScreenLock {
public:
    virtual ~ScreenLock() = default;

    // Whether the session is locked or the screen saver covers it.
    virtual bool isLocked() const = 0;
    // Whether nobody has logged in yet.
    virtual bool isGreeter() const = 0;
    // Calls `observer` after either has changed.
    virtual Subscription observe(std::function<void()> observer) = 0;
};
