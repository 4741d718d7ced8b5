// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/ClockJumpPower.h"
#include "platform/linux/LogindPower.h"

// Sleep and waking as logind reports them, and by the clocks if logind missed it. Both must outlive it.
class LinuxPower : public PowerEvents {
public:
    LinuxPower(LogindPower& logind, ClockJumpPower& clocks);

    // Never false, because the clocks always work.
    bool observe(Handlers handlers) override;
    QString describe() const override;

private:
    LogindPower& m_logind;
    ClockJumpPower& m_clocks;
};
