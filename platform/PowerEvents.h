// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Sleep and waking of the machine. Main thread only.
class PowerEvents {
public:
    struct Handlers {
        // The machine will sleep, or may. It waits until this returns, but not for long.
        std::function<void()> aboutToSleep;
        // The machine has woken up, or does not sleep after all.
        std::function<void()> woke;
    };

    virtual ~PowerEvents() = default;

    // Replaces both handlers; empty ones are not called. False if nothing reports sleep.
    virtual bool observe(Handlers handlers) = 0;
    virtual QString describe() const = 0;
};
