// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

#include <chrono>
#include <functional>
#include <optional>

// The login session of this process, as logind last reported it. It is found by its name, else by this
// process, else as the user's session with a display. While it is unknown, it counts as active and not
// locked. `systemBus` must outlive it.
class OwnSession {
public:
    // `sessionId` is logind's name for the session, as in $XDG_SESSION_ID; empty if it is not known.
    OwnSession(Bus& systemBus, SystemLog& log, QString sessionId);

    bool isKnown() const { return m_isKnown; }

    // Whether this session is in front, rather than another one on the same seat.
    bool isActive() const { return m_isActive; }

    // As the screen locker reports to logind.
    bool isLocked() const { return m_isLocked; }

    // Since when, on the monotonic clock, the desktop has reported nobody; absent while somebody is there.
    std::optional<std::chrono::nanoseconds> idleSince() const {
        return m_isIdle ? std::optional(m_idleSince) : std::nullopt;
    }

    // Whether nobody has logged in in this session yet.
    bool isGreeter() const { return m_isGreeter; }

    // Calls `observer` when one of the above has changed, except the idle time.
    Subscription observe(std::function<void()> observer);
    // Calls `observer` when the desktop reports somebody again.
    Subscription observeInput(News::Hearer observer) const { return m_inputs.observe(std::move(observer)); }
    // Calls `observer` with true when the session is asked to lock, with false to unlock. This is only a
    // request: there may be no locker that follows it.
    Subscription observeRequests(std::function<void(bool shallLock)> observer);

    BusService& logind() { return m_logind; }

private:
    using Step = void (OwnSession::*)();

    void follow();
    // Tries the next way of finding the session.
    void next();
    void findByName();
    void findByProcess();
    void findByUser();
    void ask(const QString& method, const QVariant& argument);
    // Listens to this session and reads it; one that cannot be read is not ours.
    void tryPath(const QString& path);
    void listen(const QString& path);
    void adopt(const QVariantMap& properties);

    BusService m_logind;
    SystemLog& m_log;
    QString m_sessionId;
    std::size_t m_step = 0;
    // Answers to an earlier search are dropped.
    int m_search = 0;
    bool m_isKnown = false;
    bool m_isActive = true;
    bool m_isLocked = false;
    bool m_isGreeter = false;
    bool m_isIdle = false;
    std::chrono::nanoseconds m_idleSince{0};
    News m_observers;
    News m_inputs;
    QExplicitlySharedDataPointer<Listeners<std::function<void(bool)>>> m_requestObservers;
    std::vector<std::unique_ptr<BusSignal>> m_signals;
    std::unique_ptr<BusSignal> m_sessionNew;
    Subscription m_service;
};
