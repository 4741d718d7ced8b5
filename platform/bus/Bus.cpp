// SPDX-License-Identifier: MIT
#include "platform/bus/Bus.h"

#include "platform/foundation/values/Assertions.h"

#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QPointer>

#include <algorithm>

namespace {

// QtDBus keeps connections by name for the whole process.
QString nextConnectionName() {
    static int last = 0;
    return QStringLiteral("ticklog-%1").arg(++last);
}

} // namespace

Bus::Opener Bus::systemBus() {
    return
        [](const QString& name) { return QDBusConnection::connectToBus(QDBusConnection::SystemBus, name); };
}

Bus::Opener Bus::sessionBus() {
    return
        [](const QString& name) { return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name); };
}

Bus::Opener Bus::atAddress(const QString& address) {
    return [address](const QString& name) { return QDBusConnection::connectToBus(address, name); };
}

Bus::Bus(Opener opener, RunLoop& runLoop, SystemLog& log)
    : m_opener(std::move(opener))
    , m_runLoop(runLoop)
    , m_log(log)
    , m_connection(QString()) {
    open();
}

Bus::~Bus() {
    close();
}

Subscription Bus::observe(std::function<void()> observer) {
    return m_observers.observe(std::move(observer));
}

void Bus::open() {
    m_name = nextConnectionName();
    m_connection = m_opener(m_name);
    // libdbus reports the loss as a last message from the bus.
    m_connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                         QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                         SLOT(lose()));
    if (!m_connection.isConnected()) {
        close();
        m_retry = m_runLoop.scheduleOnce(m_retryDelay, [this] { open(); });
        m_retryDelay = std::min<std::chrono::milliseconds>(2 * m_retryDelay, kSlowestRetry);
        return;
    }
    m_isConnected = true;
    m_retryDelay = kFirstRetry;
    tell();
}

void Bus::close() {
    m_isConnected = false;
    m_connection = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(m_name);
}

void Bus::lose() {
    if (!m_isConnected)
        return;
    close();
    m_retry = m_runLoop.scheduleOnce(m_retryDelay, [this] { open(); });
    tell();
}

void Bus::tell() {
    m_observers.tell();
}

void Bus::call(const QDBusMessage& message, QObject* context, Receiver receiver, int timeoutMs) {
    if (!m_isConnected) {
        // QtDBus itself would never answer.
        const auto error =
            QDBusMessage::createError(QDBusError::Disconnected, QStringLiteral("no message bus"));
        QMetaObject::invokeMethod(
            context,
            [self = QPointer(this), error, receiver = std::move(receiver)] {
                if (self && receiver)
                    self->deliver(receiver, error);
            },
            Qt::QueuedConnection);
        return;
    }
    const QDBusPendingCall pending = m_connection.asyncCall(message, timeoutMs);
    if (!receiver)
        return;
    auto* watcher = new QDBusPendingCallWatcher(pending, context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this,
                     [this, watcher, receiver = std::move(receiver)] {
                         watcher->deleteLater();
                         deliver(receiver, watcher->reply());
                     });
}

void Bus::deliver(const Receiver& receiver, const QDBusMessage& message) {
    try {
        receiver(message);
    } catch (const InternalInconsistency& failure) {
        m_log.log(failure.logLine());
    }
}
