// SPDX-License-Identifier: MIT
#include "platform/x11/X11Connection.h"

#include <QDeadlineTimer>

#include <xcb/randr.h>
#include <xcb/res.h>
#include <xcb/sync.h>
#include <xcb/xcbext.h>

#include <cstring>
#include <poll.h>

namespace {

constexpr std::chrono::milliseconds kFirstRetry{250};
constexpr std::chrono::seconds kLongestRetry{30};
constexpr int kLongestSilenceMs = 500;
// An answer leads to another question a few times in a row; more mean that the desktop does not settle.
constexpr int kMostTurns = 100;

} // namespace

Result<std::unique_ptr<X11Connection>> X11Connection::tryConnect(const QByteArray& display, RunLoop& runLoop,
                                                                 SystemLog& log) {
    std::unique_ptr<X11Connection> connection(new X11Connection(display, runLoop, log));
    if (const auto reason = connection->connect())
        return Failure{Failure::Kind::NotFound, *reason};
    return connection;
}

X11Connection::X11Connection(QByteArray display, RunLoop& runLoop, SystemLog& log)
    : m_display(std::move(display))
    , m_runLoop(runLoop)
    , m_log(log)
    , m_retryDelay(kFirstRetry) {}

X11Connection::~X11Connection() = default;

std::optional<QString> X11Connection::connect() {
    int screenNumber = 0;
    m_connection.reset(xcb_connect(m_display.isEmpty() ? nullptr : m_display.constData(), &screenNumber));
    xcb_connection_t* xcb = m_connection.get();
    if (xcb_connection_has_error(xcb)) {
        m_connection.reset();
        const QByteArray name = m_display.isEmpty() ? qgetenv("DISPLAY") : m_display;
        return name.isEmpty() ? QStringLiteral("no X display is named")
                              : QStringLiteral("the X display ") + QString::fromLocal8Bit(name) +
                                    QStringLiteral(" cannot be reached");
    }
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber)
        xcb_screen_next(&screen);
    m_root = screen.data->root;
    xcb_prefetch_extension_data(xcb, &xcb_screensaver_id);
    xcb_prefetch_extension_data(xcb, &xcb_res_id);
    xcb_prefetch_extension_data(xcb, &xcb_randr_id);
    xcb_prefetch_extension_data(xcb, &xcb_sync_id);
    if (!internAtoms()) {
        m_connection.reset();
        return QStringLiteral("the X server went away");
    }
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(xcb), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { dispatch(); });
    return std::nullopt;
}

bool X11Connection::internAtoms() {
    std::array<xcb_intern_atom_cookie_t, kX11AtomNames.size()> cookies{};
    for (std::size_t i = 0; i < kX11AtomNames.size(); ++i)
        cookies[i] = xcb_intern_atom(xcb(), 0, quint16(std::strlen(kX11AtomNames[i])), kX11AtomNames[i]);
    ++m_roundTrips;
    for (std::size_t i = 0; i < kX11AtomNames.size(); ++i) {
        const X11Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(xcb(), cookies[i], nullptr));
        if (!reply)
            return false;
        m_atoms.set(i, reply->atom);
    }
    return true;
}

quint32 X11Connection::clientMask() const {
    return ~xcb_get_setup(xcb())->resource_id_mask;
}

const xcb_query_extension_reply_t* X11Connection::extension(xcb_extension_t& extension) const {
    const auto* data = xcb_get_extension_data(xcb(), &extension);
    return data && data->present ? data : nullptr;
}

void X11Connection::expect(unsigned sequence, ReplyHandler handler) {
    m_expected.push_back({sequence, std::move(handler)});
    m_hasUnsentQuestions = true;
}

void X11Connection::flush() {
    if (!isAlive())
        return;
    if (std::exchange(m_hasUnsentQuestions, false))
        ++m_roundTrips;
    xcb_flush(xcb());
}

void X11Connection::awaitReplies() {
    for (int turn = 0; turn < kMostTurns && isAlive() && !m_expected.empty(); ++turn) {
        pollfd socket{xcb_get_file_descriptor(xcb()), POLLIN, 0};
        if (::poll(&socket, 1, kLongestSilenceMs) <= 0)
            return;
        dispatch();
    }
}

X11Owned<void> X11Connection::wait(unsigned sequence) {
    ++m_roundTrips;
    m_hasUnsentQuestions = false;
    xcb_flush(xcb());
    void* answer = nullptr;
    xcb_generic_error_t* error = nullptr;
    bool isAnswered = xcb_poll_for_reply(xcb(), sequence, &answer, &error) != 0;
    // A server that hangs must not make this process hang.
    for (const QDeadlineTimer patience(kLongestSilenceMs); !isAnswered && !patience.hasExpired();) {
        pollfd socket{xcb_get_file_descriptor(xcb()), POLLIN, 0};
        ::poll(&socket, 1, int(patience.remainingTime()));
        isAnswered = xcb_poll_for_reply(xcb(), sequence, &answer, &error) != 0;
    }
    if (!isAnswered)
        xcb_discard_reply(xcb(), sequence);
    X11Owned<void> reply(answer);
    std::free(error);
    // Waiting has emptied the socket, so nothing else reports the events that came with the reply.
    while (xcb_generic_event_t* event = xcb_poll_for_queued_event(xcb()))
        m_arrived.emplace_back(event);
    if (!m_arrived.empty() || !m_expected.empty() || xcb_connection_has_error(xcb()))
        m_soon = m_runLoop.scheduleOnce(std::chrono::nanoseconds(0), [this] { dispatch(); });
    return reply;
}

void X11Connection::dispatch() {
    // A handler may run an event loop of its own, which comes back here. So nothing is kept across the calls
    // that could have changed meanwhile.
    bool isBusy = true;
    while (isBusy && isAlive()) {
        const bool hadEvents = handOutEvents();
        const bool hadReplies = handOutReplies();
        isBusy = hadEvents || hadReplies;
        if (isBusy)
            m_news.tell(&Hearer::settled);
        flush();
    }
    if (isAlive() && xcb_connection_has_error(xcb()))
        lose();
}

bool X11Connection::handOutEvents() {
    bool hadAny = false;
    while (true) {
        X11Owned<xcb_generic_event_t> event;
        if (m_arrived.empty()) {
            event.reset(xcb_poll_for_event(xcb()));
        } else {
            event = std::move(m_arrived.front());
            m_arrived.pop_front();
        }
        if (!event)
            return hadAny;
        hadAny = true;
        m_news.tell(&Hearer::event, *event);
    }
}

bool X11Connection::handOutReplies() {
    bool hadAny = false;
    while (!m_expected.empty()) {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (!xcb_poll_for_reply(xcb(), m_expected.front().sequence, &reply, &error))
            return hadAny;
        const X11Owned<void> owned(reply);
        std::free(error);
        const ReplyHandler handler = std::move(m_expected.front().handler);
        m_expected.pop_front();
        hadAny = true;
        if (!xcb_connection_has_error(xcb()))
            handler(reply);
    }
    return hadAny;
}

void X11Connection::lose() {
    m_notifier.reset();
    m_expected.clear();
    m_arrived.clear();
    m_soon.reset();
    m_connection.reset();
    m_hasUnsentQuestions = false;
    m_log.log(QStringLiteral("The X server is gone; trying to reach it again."));
    m_retryDelay = kFirstRetry;
    scheduleRetry();
    m_news.tell(&Hearer::lost);
}

void X11Connection::scheduleRetry() {
    m_retry = m_runLoop.scheduleOnce(m_retryDelay, [this] { retry(); });
    m_retryDelay = std::min<std::chrono::nanoseconds>(2 * m_retryDelay, kLongestRetry);
}

void X11Connection::retry() {
    if (connect()) {
        scheduleRetry();
        return;
    }
    m_log.log(QStringLiteral("The X server is back."));
    m_news.tell(&Hearer::connected);
    flush();
}
