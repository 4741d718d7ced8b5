// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/foundation/time/IdleMeter.h"
#include "platform/wayland/WaylandConnection.h"

struct ext_idle_notification_v1;
struct ext_idle_notifier_v1;
struct org_kde_kwin_idle;
struct org_kde_kwin_idle_timeout;

// The time since the last input, by the compositor's notifications: the first five seconds count as zero,
// after that it is exact except for the delay of an event. Reading it costs no round trip. Main thread only.
class WaylandIdleTime : public IdleTime {
public:
    // `display` is a socket's name or path; empty for the one in the environment. Idle time below `threshold`
    // counts as zero. The other arguments outlive it.
    static Result<std::unique_ptr<WaylandIdleTime>>
    open(const QByteArray& display, RunLoop& runLoop, SystemLog& log, const Clock& clock,
         std::chrono::milliseconds threshold = IdleMeter::kThreshold);
    ~WaylandIdleTime() override;

    IdleReading read() override;
    bool tellsOfInput() const override { return m_protocol != Protocol::None; }
    QString describe() const override;

private:
    // In order of preference.
    enum class Protocol { InputNotification, Notification, Kde, None };

    struct Destroy {
        void operator()(wl_seat* seat) const { wl_seat_destroy(seat); }
        void operator()(ext_idle_notifier_v1* notifier) const;
        void operator()(ext_idle_notification_v1* notification) const;
        void operator()(org_kde_kwin_idle* idle) const;
        void operator()(org_kde_kwin_idle_timeout* timeout) const;
    };

    // The input devices of one user.
    struct Seat {
        std::uint32_t name;
        IdleMeter meter;
        News& input;
        std::unique_ptr<wl_seat, Destroy> seat;
        std::unique_ptr<ext_idle_notification_v1, Destroy> notification;
        std::unique_ptr<org_kde_kwin_idle_timeout, Destroy> timeout;
    };

    WaylandIdleTime(std::unique_ptr<WaylandConnection> connection, const Clock& clock,
                    std::chrono::milliseconds threshold);
    Protocol offered() const;
    void bind();
    void unbind();
    void addSeat(const WaylandGlobal& global);
    void removeSeat(const WaylandGlobal& global);

    std::unique_ptr<WaylandConnection> m_connection;
    const Clock& m_clock;
    std::chrono::milliseconds m_threshold;
    Protocol m_protocol = Protocol::None;
    std::unique_ptr<ext_idle_notifier_v1, Destroy> m_notifier;
    std::unique_ptr<org_kde_kwin_idle, Destroy> m_kdeIdle;
    std::vector<std::unique_ptr<Seat>> m_seats;
    Subscription m_news;
};
