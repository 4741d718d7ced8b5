// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/foundation/time/Clock.h"
#include "platform/linux/OwnSession.h"

// The last resort: the desktop tells logind since when nobody is there. It does so only after some time,
// often minutes, which count as zero. Main thread only.
class LogindIdleTime : public IdleTime {
public:
    // Both outlive it.
    LogindIdleTime(const OwnSession& session, const Clock& clock)
        : m_session(session)
        , m_clock(clock)
        , m_returns(session.observeInput([this] { m_input.tell(); })) {}

    IdleReading read() override;
    bool tellsOfInput() const override { return true; }
    QString describe() const override;

private:
    const OwnSession& m_session;
    const Clock& m_clock;
    Subscription m_returns;
};
