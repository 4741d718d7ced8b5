// SPDX-License-Identifier: MIT
#include "platform/linux/TerminationSignals.h"

#include <QScopeGuard>

#include <atomic>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace {

// A signal handler can use only globals.
std::atomic<int> writeEnd{-1};

void noteSignal(int signal) {
    const int savedError = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // A full pipe has thousands of bytes with the same meaning, so one more is not needed.
    [[maybe_unused]] const auto written = write(writeEnd.load(), &byte, 1);
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals(RunLoop& runLoop, Callback callback)
    : m_runLoop(runLoop)
    , m_callback(std::move(callback)) {
    if (pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe for signals: %d", errno);
    writeEnd = m_pipe[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { receive(); });

    struct sigaction action {};

    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], &action, &m_before[i]);
        if (kSignals[i] == SIGHUP && m_before[i].sa_handler == SIG_IGN)
            sigaction(SIGHUP, &m_before[i], nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    *m_alive = false;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &m_before[i], nullptr);
    writeEnd = -1;
    m_notifier.reset();
    close(m_pipe[0]);
    close(m_pipe[1]);
}

void TerminationSignals::receive() {
    unsigned char byte = 0;
    while (read(m_pipe[0], &byte, 1) == 1)
        m_pending.push_back(byte);
    // Through the run loop, where a task that fails does not end the program.
    if (!m_pending.empty() && !m_isDelivering)
        m_runLoop.performSoon([this, alive = m_alive] {
            if (*alive)
                deliver();
        });
}

void TerminationSignals::deliver() {
    if (m_isDelivering || m_pending.empty())
        return;
    const auto alive = m_alive;
    const auto callback = m_callback;
    m_isDelivering = true;
    const auto next = qScopeGuard([this, alive] {
        if (!*alive)
            return;
        m_isDelivering = false;
        if (!m_pending.empty())
            m_runLoop.performSoon([this, alive] {
                if (*alive)
                    deliver();
            });
    });
    const int signal = m_pending.front();
    m_pending.erase(m_pending.begin());
    callback(signal);
}
