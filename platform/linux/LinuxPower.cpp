// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxPower.h"

LinuxPower::LinuxPower(LogindPower& logind, ClockJumpPower& clocks)
    : m_logind(logind)
    , m_clocks(clocks)
    , m_ofLogind(logind.observe(repeated()))
    , m_ofClocks(clocks.observe(repeated())) {}

PowerEvents::Hearer LinuxPower::repeated() const {
    return {.aboutToSleep = [this] { m_news.tell(&Hearer::aboutToSleep); },
            .woke = [this] { m_news.tell(&Hearer::woke); }};
}

QString LinuxPower::describe() const {
    return m_logind.isServed() ? m_logind.describe() : m_clocks.describe();
}
