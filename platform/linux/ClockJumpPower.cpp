// SPDX-License-Identifier: MIT
#include "platform/linux/ClockJumpPower.h"

ClockJumpPower::ClockJumpPower(const Clock& clock)
    : m_clock(clock)
    , m_slept(slept()) {}

void ClockJumpPower::check() {
    const auto now = slept();
    // Small differences are not stored: many of them would hide a real one.
    if (now - m_slept < kShortestSleep)
        return;
    m_slept = now;
    m_news.tell(&Hearer::aboutToSleep);
    m_news.tell(&Hearer::woke);
}

QString ClockJumpPower::describe() const {
    return QStringLiteral("clocks compared");
}
