// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <chrono>
#include <functional>
#include <limits>
#include <memory>

// A connection of our own to a message bus. If there is no bus or it goes away, that is a normal state: the
// connection is tried again, less and less often, and observers are told. Only opening waits, for a local
// socket and a greeting; nothing waits for a reply. Main thread only; all arguments must outlive it.
class Bus : public QObject {
    Q_OBJECT

public:
    // Opens a new private connection; QtDBus keeps it under `name`.
    using Opener = std::function<QDBusConnection(const QString& name)>;
    using Receiver = std::function<void(const QDBusMessage& message)>;

    // A time limit, in milliseconds, for calls whose answer is accepted however late it comes.
    static constexpr int kHoweverLate = std::numeric_limits<int>::max();

    static constexpr std::chrono::milliseconds kFirstRetry{500};
    static constexpr std::chrono::seconds kSlowestRetry{60};

    static Opener systemBus();
    static Opener sessionBus();
    static Opener atAddress(const QString& address);

    // Tries to open the connection before it returns.
    Bus(Opener opener, RunLoop& runLoop, SystemLog& log);
    ~Bus() override;

    bool isConnected() const { return m_isConnected; }

    // REQUIRES: isConnected().
    QDBusConnection connection() const { return m_connection; }

    // Calls `observer` after the connection has come or gone.
    Subscription observe(std::function<void()> observer);

    // Sends a method call. `receiver` gets the reply or the error, unless `context` is gone by then; it may
    // be empty. Without a connection the error comes in a later turn of the loop.
    void call(const QDBusMessage& message, QObject* context, Receiver receiver, int timeoutMs = -1);

    // Runs `receiver`. If it breaks a contract, only this message is lost.
    void deliver(const Receiver& receiver, const QDBusMessage& message);

private:
    Q_SLOT void lose();
    void open();
    void close();
    void tell();

    Opener m_opener;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    QString m_name;
    QDBusConnection m_connection;
    bool m_isConnected = false;
    std::chrono::milliseconds m_retryDelay = kFirstRetry;
    std::unique_ptr<RunLoopTimer> m_retry;
    News m_observers;
};
