// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Sleep and wake of the machine. Main thread only.
class PowerEvents {
public:
    struct Handlers {
        // The machine is about to sleep, or may be. It waits until this returns, though not for long.
        std::function<void()> aboutToSleep;
        // It is awake again, or does not sleep after all.
        std::function<void()> woke;
    };

    virtual ~PowerEvents() = default;

    // Replaces the handlers; empty ones are not called. False when nobody tells of sleep.
    virtual bool observe(Handlers handlers) = 0;
    virtual QString describe() const = 0;
};
