// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SessionEvents.h"
#include "platform/linux/DelayInhibitor.h"
#include "platform/linux/OwnSession.h"

// The session as logind reports it. Before the machine powers off, it waits a few seconds at most for
// those who hear of it. `session` must outlive it.
class LogindSession : public SessionEvents {
public:
    LogindSession(OwnSession& session, SystemLog& log);

    QString describe() const override;

    // Whether the machine would wait for this process before it powers off.
    bool isDelaying() const { return m_inhibitor.isHeld(); }

private:
    void follow();
    void prepareForShutdown(bool isPreparing);

    OwnSession& m_session;
    DelayInhibitor m_inhibitor;
    bool m_wasActive = true;
    bool m_isPreparing = false;
    std::unique_ptr<BusSignal> m_prepareForShutdown;
    Subscription m_changes;
};
