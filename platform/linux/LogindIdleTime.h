// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/foundation/time/Clock.h"
#include "platform/linux/OwnSession.h"

// The last resort: since when the desktop has been telling logind that nobody is there. It tells that only after a while
// of its own, often some minutes, which count as none. Main thread only.
class LogindIdleTime : public IdleTime {
public:
    // Both outlive it.
    LogindIdleTime(const OwnSession& session, const Clock& clock)
        : m_session(session)
        , m_clock(clock) {}

    IdleReading read() override;
    QString describe() const override;

private:
    const OwnSession& m_session;
    const Clock& m_clock;
};
