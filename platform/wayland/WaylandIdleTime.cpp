// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandIdleTime.h"

#include <ext-idle-notify-v1-client-protocol.h>
#include <idle-client-protocol.h>

#include <algorithm>

namespace {

constexpr std::uint32_t kNewestNotifier = 2;

bool isSeat(const WaylandGlobal& global) {
    return global.interface == wl_seat_interface.name;
}

} // namespace

void WaylandIdleTime::Destroy::operator()(ext_idle_notifier_v1* notifier) const {
    ext_idle_notifier_v1_destroy(notifier);
}

void WaylandIdleTime::Destroy::operator()(ext_idle_notification_v1* notification) const {
    ext_idle_notification_v1_destroy(notification);
}

void WaylandIdleTime::Destroy::operator()(org_kde_kwin_idle* idle) const {
    org_kde_kwin_idle_destroy(idle);
}

void WaylandIdleTime::Destroy::operator()(org_kde_kwin_idle_timeout* timeout) const {
    org_kde_kwin_idle_timeout_release(timeout);
}

Result<std::unique_ptr<WaylandIdleTime>> WaylandIdleTime::open(const QByteArray& display, RunLoop& runLoop,
                                                               SystemLog& log, const Clock& clock,
                                                               std::chrono::milliseconds threshold) {
    auto connection = WaylandConnection::tryConnect(display, runLoop, log);
    if (!connection)
        return connection.failure();
    std::unique_ptr<WaylandIdleTime> idleTime(new WaylandIdleTime(std::move(*connection), clock, threshold));
    if (idleTime->offered() == Protocol::None)
        return Failure{Failure::Kind::NotFound,
                       QStringLiteral("the compositor does not tell when nobody touches anything")};
    idleTime->bind();
    if (!idleTime->m_connection->awaitAnswers())
        return Failure{Failure::Kind::Unreadable, QStringLiteral("the compositor does not answer")};
    return idleTime;
}

WaylandIdleTime::WaylandIdleTime(std::unique_ptr<WaylandConnection> connection, const Clock& clock,
                                 std::chrono::milliseconds threshold)
    : m_connection(std::move(connection))
    , m_clock(clock)
    , m_threshold(threshold) {
    const auto ifSeat = [](const auto& act) {
        return [act](const WaylandGlobal& global) {
            if (isSeat(global))
                act(global);
        };
    };
    m_news = m_connection->observe({[this] { bind(); },
                                    [this] { unbind(); },
                                    ifSeat([this](const WaylandGlobal& global) { addSeat(global); }),
                                    ifSeat([this](const WaylandGlobal& global) { removeSeat(global); }),
                                    {}});
}

WaylandIdleTime::~WaylandIdleTime() = default;

IdleReading WaylandIdleTime::read() {
    if (m_protocol == Protocol::None)
        return IdleReading::Lack::NoAnswer;
    if (m_seats.empty())
        return IdleReading::Lack::NotCounted;
    // Nobody is idle while anybody works: the shortest time counts.
    std::chrono::nanoseconds idle = m_seats.front()->meter.idle();
    for (const auto& seat : m_seats)
        idle = std::min(idle, seat->meter.idle());
    return idle;
}

QString WaylandIdleTime::describe() const {
    switch (m_protocol) {
    case Protocol::InputNotification:
        return QStringLiteral("Wayland: the compositor tells when there is no input (ext-idle-notify 2)");
    case Protocol::Notification:
        return QStringLiteral("Wayland: the compositor tells when nobody is there (ext-idle-notify)");
    case Protocol::Kde:
        return QStringLiteral("Wayland: the compositor tells when nobody is there (KDE's idle protocol)");
    case Protocol::None:
        break;
    }
    return QStringLiteral("Wayland: no compositor tells when nobody is there");
}

WaylandIdleTime::Protocol WaylandIdleTime::offered() const {
    if (const WaylandGlobal* notifier = m_connection->find(ext_idle_notifier_v1_interface.name))
        return notifier->version >= EXT_IDLE_NOTIFIER_V1_GET_INPUT_IDLE_NOTIFICATION_SINCE_VERSION
                   ? Protocol::InputNotification
                   : Protocol::Notification;
    return m_connection->find(org_kde_kwin_idle_interface.name) ? Protocol::Kde : Protocol::None;
}

void WaylandIdleTime::bind() {
    m_protocol = offered();
    if (m_protocol == Protocol::Kde)
        m_kdeIdle.reset(m_connection->bind<org_kde_kwin_idle>(
            *m_connection->find(org_kde_kwin_idle_interface.name), org_kde_kwin_idle_interface, 1));
    else if (m_protocol != Protocol::None)
        m_notifier.reset(
            m_connection->bind<ext_idle_notifier_v1>(*m_connection->find(ext_idle_notifier_v1_interface.name),
                                                     ext_idle_notifier_v1_interface, kNewestNotifier));
    for (const WaylandGlobal& global : m_connection->globals()) {
        if (isSeat(global))
            addSeat(global);
    }
}

void WaylandIdleTime::unbind() {
    m_seats.clear();
    m_notifier.reset();
    m_kdeIdle.reset();
    m_protocol = Protocol::None;
    m_input.tell();
}

void WaylandIdleTime::addSeat(const WaylandGlobal& global) {
    if (m_protocol == Protocol::None)
        return;
    m_seats.push_back(std::make_unique<Seat>(
        Seat{global.name, IdleMeter(m_clock, m_threshold), m_input, nullptr, nullptr, nullptr}));
    Seat& added = *m_seats.back();
    const auto timeout = std::uint32_t(m_threshold.count());
    added.seat.reset(m_connection->bind<wl_seat>(global, wl_seat_interface, 1));
    static constexpr auto kIdle = [](void* seat, auto*) { static_cast<Seat*>(seat)->meter.noteIdle(); };
    static constexpr auto kInput = [](void* seat, auto*) {
        static_cast<Seat*>(seat)->meter.noteInput();
        static_cast<Seat*>(seat)->input.tell();
    };
    if (m_protocol == Protocol::Kde) {
        static constexpr org_kde_kwin_idle_timeout_listener kListener{kIdle, kInput};
        added.timeout.reset(org_kde_kwin_idle_get_idle_timeout(m_kdeIdle.get(), added.seat.get(), timeout));
        org_kde_kwin_idle_timeout_add_listener(added.timeout.get(), &kListener, &added);
        return;
    }
    static constexpr ext_idle_notification_v1_listener kListener{kIdle, kInput};
    const auto ask = m_protocol == Protocol::InputNotification
                         ? ext_idle_notifier_v1_get_input_idle_notification
                         : ext_idle_notifier_v1_get_idle_notification;
    added.notification.reset(ask(m_notifier.get(), timeout, added.seat.get()));
    ext_idle_notification_v1_add_listener(added.notification.get(), &kListener, &added);
}

void WaylandIdleTime::removeSeat(const WaylandGlobal& global) {
    std::erase_if(m_seats, [&](const auto& seat) { return seat->name == global.name; });
}
