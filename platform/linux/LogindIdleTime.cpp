// SPDX-License-Identifier: MIT
#include "platform/linux/LogindIdleTime.h"

IdleReading LogindIdleTime::read() {
    const auto since = m_session.idleSince();
    const auto idle = since ? m_clock.monotonic() - *since : std::chrono::nanoseconds::zero();
    return std::max(idle, std::chrono::nanoseconds::zero());
}

QString LogindIdleTime::describe() const {
    return QStringLiteral("logind: the desktop tells it when nobody is there, some minutes late");
}
