// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/OwnSession.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/ScreenSaverService.h"

// The lock, as logind and the session's screen savers report it; one report is enough. logind's request to
// lock counts at once, but only for a while unless a locker follows it. All arguments must outlive it.
class DesktopScreenLock : public ScreenLock {
public:
    // How long a request to lock counts without a locker that follows it.
    static constexpr std::chrono::seconds kRequestBelieved{10};

    DesktopScreenLock(OwnSession& session, Bus& sessionBus, RunLoop& runLoop);

    bool isLocked() const override { return m_isLocked; }

    bool isGreeter() const override { return m_isGreeter; }

    Subscription observe(std::function<void()> observer) override;

private:
    void request(bool shallLock);
    void follow();

    OwnSession& m_session;
    RunLoop& m_runLoop;
    bool m_isLocked = false;
    bool m_isGreeter = false;
    // Valid while there is a request that no locker has followed yet.
    std::unique_ptr<RunLoopTimer> m_request;
    std::vector<std::unique_ptr<ScreenSaverService>> m_screenSavers;
    News m_observers;
    Subscription m_sessionChanges;
    Subscription m_requests;
};
