// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

// The values are those by which these messages have always been known.
enum class PowerMessage : std::uint32_t {
    CanSystemSleep = 0xE0000270,
    SystemWillSleep = 0xE0000280,
    SystemWillNotSleep = 0xE0000290,
    SystemHasPoweredOn = 0xE0000300,
};

// Sleep and wake of the machine. Main thread only.
class PowerEvents {
public:
    // `notification` is handed back with allowPowerChange.
    using Handler = std::function<void(PowerMessage message, std::int64_t notification)>;

    virtual ~PowerEvents() = default;

    // Calls `handler` from now on. Answers the root port, which is zero when the system tells nothing of its power.
    virtual std::uint32_t registerForSystemPower(Handler handler) = 0;
    // Lets the sleep go on that `notification` told of. Must follow both CanSystemSleep and SystemWillSleep promptly:
    // the system waits for it, though not for long.
    virtual void allowPowerChange(std::uint32_t rootPort, std::int64_t notification) = 0;
    virtual QString describe() const = 0;
};
