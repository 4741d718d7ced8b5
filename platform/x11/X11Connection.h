// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Result.h"
#include "platform/foundation/values/SystemLog.h"
#include "platform/x11/X11Atoms.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <xcb/screensaver.h>

#include <cstdlib>
#include <deque>
#include <memory>
#include <optional>

struct X11Free {
    void operator()(void* reply) const { std::free(reply); }
};
// A reply or an event from xcb, to be freed.
template<class Reply>
using X11Owned = std::unique_ptr<Reply, X11Free>;

// A connection of our own to an X server. Requests are sent without waiting, and replies passed to whoever
// asked, so the event loop never stops for the server. When the server goes, the connection is lost, which is
// a normal state: it is tried again, less and less often, until the server is back. Main thread only.
class X11Connection {
public:
    // What a user of the connection is told. All may be empty. None may destroy the connection.
    struct Hearer {
        // A server has been reached; everything known of an earlier one is invalid.
        std::function<void()> connected;
        std::function<void()> lost;
        // An event, including errors.
        std::function<void(const xcb_generic_event_t& event)> event;
        // Everything that had arrived has been passed out: look at the whole now, and ask for more.
        std::function<void()> settled;
    };

    // Gets the reply, or null if the server refused: the window may be gone.
    using ReplyHandler = std::function<void(const void* reply)>;

    // `display` is a display name such as ":0"; empty for the one in the environment. `runLoop` and `log`
    // outlive it.
    static Result<std::unique_ptr<X11Connection>> tryConnect(const QByteArray& display, RunLoop& runLoop,
                                                             SystemLog& log);
    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    Subscription observe(Hearer hearer) { return m_news.observe(std::move(hearer)); }

    bool isAlive() const { return m_connection != nullptr; }

    // For sending requests. REQUIRES: isAlive().
    xcb_connection_t* xcb() const { return m_connection.get(); }

    xcb_window_t root() const { return m_root; }

    xcb_atom_t atom(X11Atom atom) const { return m_atoms[atom]; }

    // The bits of a window's number that identify its client.
    quint32 clientMask() const;
    const xcb_query_extension_reply_t* extension(xcb_extension_t& extension) const;

    // Passes the reply to the last request to `handler`, which is dropped if the connection is lost.
    void expect(unsigned sequence, ReplyHandler handler);
    // Whether replies are still missing.
    bool isAwaitingReplies() const { return !m_expected.empty(); }
    // Sends all requests. Happens by itself after `settled`.
    void flush();
    // Waits until everything asked has been answered and passed out, so that a start is complete; gives up if
    // the server does not answer.
    void awaitReplies();
    // Waits for the reply to the last request; null if there is none, or if the server takes too long.
    X11Owned<void> wait(unsigned sequence);

    // How often requests with replies were sent together since the start. For benchmarks.
    quint64 roundTrips() const { return m_roundTrips; }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    struct Expected {
        unsigned sequence;
        ReplyHandler handler;
    };

    X11Connection(QByteArray display, RunLoop& runLoop, SystemLog& log);
    // Answers why it failed; absent if it did not.
    std::optional<QString> connect();
    bool internAtoms();
    void dispatch();
    bool handOutReplies();
    bool handOutEvents();
    void lose();
    void scheduleRetry();
    void retry();

    QByteArray m_display;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    NewsOf<Hearer> m_news;
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    xcb_window_t m_root = 0;
    X11Atoms m_atoms;
    // In the order in which they were sent.
    std::deque<Expected> m_expected;
    // Events that arrived while a reply was awaited.
    std::deque<X11Owned<xcb_generic_event_t>> m_arrived;
    std::unique_ptr<RunLoopTimer> m_soon;
    std::unique_ptr<RunLoopTimer> m_retry;
    std::chrono::nanoseconds m_retryDelay;
    quint64 m_roundTrips = 0;
    bool m_hasUnsentQuestions = false;
};
