// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Result.h"
#include "platform/foundation/values/SystemLog.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <wayland-client.h>

#include <memory>
#include <optional>
#include <vector>

// An object that a compositor offers.
struct WaylandGlobal {
    // The name with which it is bound.
    std::uint32_t name = 0;
    QByteArray interface;
    std::uint32_t version = 0;
};

// A connection of our own to a Wayland compositor. Events are read when they arrive and passed out by
// libwayland; after the start, nothing waits for the compositor. When the compositor goes, the connection is
// lost, which is a normal state: it is tried again, less and less often, until a compositor is back. Main
// thread only.
class WaylandConnection {
public:
    // What a user of the connection is told. All may be empty. None may destroy the connection.
    struct Hearer {
        // A compositor has been reached and has said what it offers: bind now.
        std::function<void()> connected;
        // The compositor is gone. Destroy every bound object within this call, and tell nobody before
        // `settled`.
        std::function<void()> lost;
        std::function<void(const WaylandGlobal& global)> offered;
        std::function<void(const WaylandGlobal& global)> withdrawn;
        // All events that had arrived have been passed out, or the compositor is gone: look at the whole now.
        // May run an event loop of its own.
        std::function<void()> settled;
    };

    // `display` is a socket's name in $XDG_RUNTIME_DIR or its full path; empty for the one in the
    // environment. What the compositor offers is known when this returns. `runLoop` and `log` outlive it.
    static Result<std::unique_ptr<WaylandConnection>> tryConnect(const QByteArray& display, RunLoop& runLoop,
                                                                 SystemLog& log);
    // All bound objects must have been destroyed before.
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;

    Subscription observe(Hearer hearer) { return m_news.observe(std::move(hearer)); }

    bool isAlive() const { return m_display != nullptr; }

    const std::vector<WaylandGlobal>& globals() const { return m_globals; }
    // The first global with this interface; null when there is none.
    const WaylandGlobal* find(const char* interface) const;

    // Binds an object at its version, but at most `newest`. REQUIRES: isAlive().
    template<class Proxy>
    Proxy* bind(const WaylandGlobal& global, const wl_interface& interface, std::uint32_t newest) const {
        const std::uint32_t version = std::min(global.version, newest);
        return static_cast<Proxy*>(wl_registry_bind(m_registry.get(), global.name, &interface, version));
    }

    // Calls `answered` when everything asked so far has been answered and passed out; never if the connection
    // is lost before.
    void afterAnswers(std::function<void()> answered);
    // Whether answers are still missing.
    bool isAwaitingAnswers() const { return !m_awaited.empty(); }
    // Asks the compositor for any answer, as a sign of life. Does nothing without a compositor, because its
    // absence is known.
    void askForSign();
    // Sends all requests. Happens by itself after every handler.
    void flush();
    // Waits until everything asked has been answered and passed out, so that a start is complete. False if
    // the compositor does not answer.
    bool awaitAnswers();

private:
    struct Disconnect {
        void operator()(wl_display* display) const { wl_display_disconnect(display); }
        void operator()(wl_registry* registry) const { wl_registry_destroy(registry); }
        void operator()(wl_callback* callback) const { wl_callback_destroy(callback); }
    };

    struct Awaited {
        std::unique_ptr<wl_callback, Disconnect> callback;
        std::function<void()> answered;
    };

    WaylandConnection(QByteArray display, RunLoop& runLoop, SystemLog& log);
    QString socketName() const;
    bool connect();
    void beIntroduced();
    void dispatch();
    void lose();
    void scheduleRetry();
    void retry();

    static void takeInGlobal(void* self, wl_registry*, std::uint32_t name, const char* interface,
                             std::uint32_t version);
    static void takeInRemoval(void* self, wl_registry*, std::uint32_t name);
    static void takeInAnswer(void* self, wl_callback* callback, std::uint32_t);

    QByteArray m_name;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    NewsOf<Hearer> m_news;
    std::unique_ptr<wl_display, Disconnect> m_display;
    std::unique_ptr<wl_registry, Disconnect> m_registry;
    std::vector<WaylandGlobal> m_globals;
    std::vector<Awaited> m_awaited;
    std::unique_ptr<QSocketNotifier> m_arrivals;
    // Set while the socket cannot take more.
    std::unique_ptr<QSocketNotifier> m_room;
    std::unique_ptr<RunLoopTimer> m_retry;
    std::chrono::nanoseconds m_retryDelay;
    // The compositor has said once what it offers.
    bool m_isIntroduced = false;
    bool m_wasLost = false;
};
