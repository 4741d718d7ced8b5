// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPower.h"

LinuxPower::LinuxPower(LogindPower& logind, ClockJumpPower& clocks)
    : m_logind(logind)
    , m_clocks(clocks) {}

std::uint32_t LinuxPower::registerForSystemPower(Handler handler) {
    m_logind.registerForSystemPower(handler);
    return m_clocks.registerForSystemPower(
        [this, handler = std::move(handler)](PowerMessage message, std::int64_t notification) {
            // logind has told of this sleep already, or is about to.
            if (!m_logind.isServed())
                handler(message, notification);
        });
}

void LinuxPower::allowPowerChange(std::uint32_t rootPort, std::int64_t notification) {
    m_logind.allowPowerChange(rootPort, notification);
}

QString LinuxPower::describe() const {
    return m_logind.isServed() ? m_logind.describe() : m_clocks.describe();
}
