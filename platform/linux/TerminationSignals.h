// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/RunLoop.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <functional>

// Turns SIGTERM, SIGINT and SIGHUP into calls on the main thread. Each signal makes one call, and no call
// begins before the last one has returned, even if that runs an event loop of its own. (The kernel joins
// equal signals that come before the first is delivered.) If SIGHUP is ignored at launch, as under nohup, it
// stays ignored. One at a time in a process; its destructor restores the previous state. `runLoop` must
// outlive it.
class TerminationSignals {
public:
    using Callback = std::function<void(int signal)>;

    TerminationSignals(RunLoop& runLoop, Callback callback);
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals();

private:
    static constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};

    void receive();
    void deliver();

    RunLoop& m_runLoop;
    Callback m_callback;
    std::array<struct sigaction, kSignals.size()> m_before{};
    std::array<int, 2> m_pipe{-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::vector<int> m_pending;
    bool m_isDelivering = false;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};
