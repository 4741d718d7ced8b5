// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandConnection.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>

namespace {

constexpr std::chrono::milliseconds kFirstRetry{250};
constexpr std::chrono::seconds kLongestRetry{30};
// Only at the start, when the desktop may also be starting and the machine be busy: a compositor that is
// given up then is not asked again.
constexpr int kLongestSilenceMs = 10'000;
// Answers come in a few pieces; more mean that the compositor keeps sending something else.
constexpr int kMostTurns = 100;

} // namespace

Result<std::unique_ptr<WaylandConnection>> WaylandConnection::tryConnect(const QByteArray& display,
                                                                         RunLoop& runLoop, SystemLog& log) {
    std::unique_ptr<WaylandConnection> connection(new WaylandConnection(display, runLoop, log));
    if (!connection->connect())
        return Failure{
            Failure::Kind::NotFound,
            QStringLiteral("the Wayland display %1 cannot be reached").arg(connection->socketName())};
    if (!connection->awaitAnswers())
        return Failure{
            Failure::Kind::Unreadable,
            QStringLiteral("the Wayland display %1 does not answer").arg(connection->socketName())};
    return connection;
}

WaylandConnection::WaylandConnection(QByteArray display, RunLoop& runLoop, SystemLog& log)
    : m_name(std::move(display))
    , m_runLoop(runLoop)
    , m_log(log)
    , m_retryDelay(kFirstRetry) {}

WaylandConnection::~WaylandConnection() = default;

QString WaylandConnection::socketName() const {
    const QByteArray name = m_name.isEmpty() ? qgetenv("WAYLAND_DISPLAY") : m_name;
    return name.isEmpty() ? QStringLiteral("wayland-0") : QString::fromLocal8Bit(name);
}

bool WaylandConnection::connect() {
    m_display.reset(wl_display_connect(m_name.isEmpty() ? nullptr : m_name.constData()));
    if (!m_display)
        return false;
    m_registry.reset(wl_display_get_registry(m_display.get()));
    static constexpr wl_registry_listener kListener{takeInGlobal, takeInRemoval};
    wl_registry_add_listener(m_registry.get(), &kListener, this);
    m_isIntroduced = false;
    afterAnswers([this] { beIntroduced(); });
    m_arrivals = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display.get()), QSocketNotifier::Read);
    QObject::connect(m_arrivals.get(), &QSocketNotifier::activated, m_arrivals.get(), [this] { dispatch(); });
    flush();
    return true;
}

void WaylandConnection::beIntroduced() {
    m_isIntroduced = true;
    m_retryDelay = kFirstRetry;
    if (std::exchange(m_wasLost, false))
        m_log.log(QStringLiteral("The Wayland compositor is back."));
    m_news.tell(&Hearer::connected);
}

const WaylandGlobal* WaylandConnection::find(const char* interface) const {
    const auto found = std::ranges::find(m_globals, QByteArray(interface), &WaylandGlobal::interface);
    return found == m_globals.end() ? nullptr : &*found;
}

void WaylandConnection::afterAnswers(std::function<void()> answered) {
    std::unique_ptr<wl_callback, Disconnect> callback(wl_display_sync(m_display.get()));
    static constexpr wl_callback_listener kListener{takeInAnswer};
    wl_callback_add_listener(callback.get(), &kListener, this);
    m_awaited.push_back({std::move(callback), std::move(answered)});
}

void WaylandConnection::askForSign() {
    if (!isAlive())
        return;
    afterAnswers([] {});
    flush();
}

void WaylandConnection::flush() {
    m_room.reset();
    if (!isAlive() || wl_display_flush(m_display.get()) >= 0 || errno != EAGAIN)
        return;
    m_room = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display.get()), QSocketNotifier::Write);
    QObject::connect(m_room.get(), &QSocketNotifier::activated, m_room.get(), [this] { flush(); });
}

bool WaylandConnection::awaitAnswers() {
    const auto isAnswered = std::make_shared<bool>(false);
    afterAnswers([isAnswered] { *isAnswered = true; });
    for (int turn = 0; turn < kMostTurns && isAlive() && !*isAnswered; ++turn) {
        flush();
        pollfd socket{wl_display_get_fd(m_display.get()), POLLIN, 0};
        const int ready = ::poll(&socket, 1, kLongestSilenceMs);
        if (ready > 0)
            dispatch();
        else if (ready == 0 || errno != EINTR)
            return false;
    }
    return *isAnswered;
}

void WaylandConnection::dispatch() {
    wl_display* const display = m_display.get();
    // Events in the queue must be passed out before more may be read.
    bool isWell = true;
    while (isWell && wl_display_prepare_read(display) != 0)
        isWell = wl_display_dispatch_pending(display) >= 0;
    isWell = isWell && wl_display_read_events(display) == 0 && wl_display_dispatch_pending(display) >= 0;
    if (!isWell)
        lose();
    m_news.tell(&Hearer::settled);
    flush();
}

void WaylandConnection::lose() {
    m_arrivals.reset();
    m_room.reset();
    m_news.tell(&Hearer::lost);
    m_awaited.clear();
    m_globals.clear();
    m_registry.reset();
    m_display.reset();
    if (m_isIntroduced)
        m_log.log(QStringLiteral("The Wayland compositor is gone; trying to reach it again."));
    m_wasLost |= m_isIntroduced;
    scheduleRetry();
}

void WaylandConnection::scheduleRetry() {
    m_retry = m_runLoop.scheduleOnce(m_retryDelay, [this] { retry(); });
    m_retryDelay = std::min<std::chrono::nanoseconds>(2 * m_retryDelay, kLongestRetry);
}

void WaylandConnection::retry() {
    if (!connect())
        scheduleRetry();
}

void WaylandConnection::takeInGlobal(void* self, wl_registry*, std::uint32_t name, const char* interface,
                                     std::uint32_t version) {
    auto& connection = *static_cast<WaylandConnection*>(self);
    connection.m_globals.push_back({name, interface, version});
    if (connection.m_isIntroduced)
        connection.m_news.tell(&Hearer::offered, WaylandGlobal(connection.m_globals.back()));
}

void WaylandConnection::takeInRemoval(void* self, wl_registry*, std::uint32_t name) {
    auto& connection = *static_cast<WaylandConnection*>(self);
    const auto found = std::ranges::find(connection.m_globals, name, &WaylandGlobal::name);
    if (found == connection.m_globals.end())
        return;
    const WaylandGlobal removed = *found;
    connection.m_globals.erase(found);
    if (connection.m_isIntroduced)
        connection.m_news.tell(&Hearer::withdrawn, removed);
}

void WaylandConnection::takeInAnswer(void* self, wl_callback* callback, std::uint32_t) {
    auto& awaited = static_cast<WaylandConnection*>(self)->m_awaited;
    const auto found =
        std::ranges::find_if(awaited, [&](const Awaited& each) { return each.callback.get() == callback; });
    const std::function<void()> answered = std::move(found->answered);
    awaited.erase(found);
    answered();
}
