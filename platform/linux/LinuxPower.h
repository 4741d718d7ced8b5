// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/ClockJumpPower.h"
#include "platform/linux/LogindPower.h"

// Sleep and waking as logind reports them, and by the clocks if logind missed it, because not every way to
// sleep goes through it. A sleep that both report is reported twice. Both must outlive it.
class LinuxPower : public PowerEvents {
public:
    LinuxPower(LogindPower& logind, ClockJumpPower& clocks);

    // Never false, because the clocks always work.
    bool tellsOfSleep() const override { return true; }
    QString describe() const override;

private:
    // Passes on what another source tells.
    Hearer repeated() const;

    LogindPower& m_logind;
    ClockJumpPower& m_clocks;
    Subscription m_ofLogind;
    Subscription m_ofClocks;
};
