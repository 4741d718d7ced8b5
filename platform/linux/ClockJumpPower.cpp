// SPDX-License-Identifier: MIT
#include "platform/linux/ClockJumpPower.h"

ClockJumpPower::ClockJumpPower(const Clock& clock)
    : m_clock(clock)
    , m_slept(slept()) {}

void ClockJumpPower::check() {
    const auto now = slept();
    // Small differences are not taken over: many of them would hide what they add up to.
    if (now - m_slept < kShortestSleep)
        return;
    m_slept = now;
    if (!m_handler)
        return;
    m_handler(PowerMessage::SystemWillSleep, 0);
    m_handler(PowerMessage::SystemHasPoweredOn, 0);
}

std::uint32_t ClockJumpPower::registerForSystemPower(Handler handler) {
    m_handler = std::move(handler);
    return 1;
}

QString ClockJumpPower::describe() const {
    return QStringLiteral("clocks compared");
}
