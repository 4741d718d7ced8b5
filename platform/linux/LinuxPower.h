// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/ClockJumpPower.h"
#include "platform/linux/LogindPower.h"

// Sleep and wake by logind, and by the clocks whatever logind missed. Both must outlive it.
class LinuxPower : public PowerEvents {
public:
    LinuxPower(LogindPower& logind, ClockJumpPower& clocks);

    // Never false: the clocks always serve.
    bool observe(Handlers handlers) override;
    QString describe() const override;

private:
    LogindPower& m_logind;
    ClockJumpPower& m_clocks;
};
