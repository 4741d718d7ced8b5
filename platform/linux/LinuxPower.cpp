// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPower.h"

LinuxPower::LinuxPower(LogindPower& logind, ClockJumpPower& clocks)
    : m_logind(logind)
    , m_clocks(clocks) {}

std::uint32_t LinuxPower::registerForSystemPower(Handler handler) {
    m_logind.registerForSystemPower(handler);
    // Also while logind is there: not every way to sleep goes through it. A sleep that both tell of is told of twice,
    // and the second time nothing is left to be done.
    return m_clocks.registerForSystemPower(std::move(handler));
}

void LinuxPower::allowPowerChange(std::uint32_t rootPort, std::int64_t notification) {
    m_logind.allowPowerChange(rootPort, notification);
}

QString LinuxPower::describe() const {
    return m_logind.isServed() ? m_logind.describe() : m_clocks.describe();
}
