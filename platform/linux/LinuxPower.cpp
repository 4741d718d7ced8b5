// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPower.h"

LinuxPower::LinuxPower(LogindPower& logind, ClockJumpPower& clocks)
    : m_logind(logind)
    , m_clocks(clocks) {}

bool LinuxPower::observe(Handlers handlers) {
    m_logind.observe(handlers);
    // Also while logind is there: not every way to sleep goes through it. A sleep that both tell of is told of twice,
    // and the second time nothing is left to be done.
    return m_clocks.observe(std::move(handlers));
}

QString LinuxPower::describe() const {
    return m_logind.isServed() ? m_logind.describe() : m_clocks.describe();
}
