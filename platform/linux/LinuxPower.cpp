// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPower.h"

LinuxPower::LinuxPower(LogindPower& logind, ClockJumpPower& clocks)
    : m_logind(logind)
    , m_clocks(clocks) {}

bool LinuxPower::observe(Handlers handlers) {
    m_logind.observe(handlers);
    // Also while logind is there, because not every way to sleep goes through it. A sleep that both report is
    // handled twice; the second time has no effect.
    return m_clocks.observe(std::move(handlers));
}

QString LinuxPower::describe() const {
    return m_logind.isServed() ? m_logind.describe() : m_clocks.describe();
}
