// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

#include <chrono>
#include <functional>
#include <optional>

// The login session this process belongs to, as logind last told. It is found by its name, else by our
// process, else as the session in which the user sits before a display. While none is known it counts as
// active and not locked. `systemBus` must outlive it.
class OwnSession {
public:
    // `sessionId` is logind's name of the session, as in $XDG_SESSION_ID; empty when it is not known.
    OwnSession(Bus& systemBus, SystemLog& log, QString sessionId);

    bool isKnown() const { return m_isKnown; }

    // Whether this session, not another one of the same seat, is in front.
    bool isActive() const { return m_isActive; }

    // What the screen locker tells logind.
    bool isLocked() const { return m_isLocked; }

    // Since when, on the monotonic clock, the desktop says that nobody is there; absent while somebody is.
    std::optional<std::chrono::nanoseconds> idleSince() const {
        return m_isIdle ? std::optional(m_idleSince) : std::nullopt;
    }

    // A session in which nobody has logged in yet.
    bool isGreeter() const { return m_isGreeter; }

    // Calls `observer` after any of the above but the idle time has changed.
    Subscription observe(std::function<void()> observer);
    // Calls `observer` with whether the session is to be locked (true) or unlocked. A request, no more: there
    // may be no screen locker that follows it.
    Subscription observeRequests(std::function<void(bool shallLock)> observer);

    BusService& logind() { return m_logind; }

private:
    using Step = void (OwnSession::*)();

    void follow();
    // Tries the next way to find the session.
    void next();
    void findByName();
    void findByProcess();
    void findByUser();
    void ask(const QString& method, const QVariant& argument);
    // Listens to the session and reads it; what cannot be read is not our session.
    void tryPath(const QString& path);
    void listen(const QString& path);
    void adopt(const QVariantMap& properties);

    BusService m_logind;
    SystemLog& m_log;
    QString m_sessionId;
    std::size_t m_step = 0;
    // Answers that belong to an earlier search are dropped.
    int m_search = 0;
    bool m_isKnown = false;
    bool m_isActive = true;
    bool m_isLocked = false;
    bool m_isGreeter = false;
    bool m_isIdle = false;
    std::chrono::nanoseconds m_idleSince{0};
    QExplicitlySharedDataPointer<Listeners<std::function<void()>>> m_observers;
    QExplicitlySharedDataPointer<Listeners<std::function<void(bool)>>> m_requestObservers;
    std::vector<std::unique_ptr<BusSignal>> m_signals;
    std::unique_ptr<BusSignal> m_sessionNew;
    Subscription m_service;
};
