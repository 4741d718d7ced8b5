// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/ClockJumpPower.h"
#include "platform/linux/LogindPower.h"

// Sleep and wake by logind, and by the clocks whatever logind missed. Both must outlive it.
class LinuxPower : public PowerEvents {
public:
    LinuxPower(LogindPower& logind, ClockJumpPower& clocks);

    // Never zero: the clocks always serve.
    std::uint32_t registerForSystemPower(Handler handler) override;
    void allowPowerChange(std::uint32_t rootPort, std::int64_t notification) override;
    QString describe() const override;

private:
    LogindPower& m_logind;
    ClockJumpPower& m_clocks;
};
