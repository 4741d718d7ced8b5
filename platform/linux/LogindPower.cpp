// SPDX-License-Identifier: MIT
#include "platform/linux/LogindPower.h"

#include "platform/linux/Logind.h"

#include <QDBusVariant>

namespace {

constexpr std::uint32_t kRootPort = 1;

} // namespace

LogindPower::LogindPower(Bus& systemBus, SystemLog& log)
    : m_bus(systemBus)
    , m_logind(systemBus, kLogindService)
    , m_inhibitor(m_logind, QStringLiteral("sleep"), QStringLiteral("Stops the timer and saves the times"),
                  log)
    , m_service(m_logind.observe([this] { follow(); })) {
    m_prepareForSleep = m_logind.listen(
        {kLogindPath, kLogindManager, QStringLiteral("PrepareForSleep"), QString()},
        [this](const QDBusMessage& signal) { setPreparing(signal.arguments().value(0).toBool()); });
}

std::uint32_t LogindPower::registerForSystemPower(Handler handler) {
    m_handler = std::move(handler);
    m_inhibitor.take();
    return m_bus.isConnected() ? kRootPort : 0;
}

void LogindPower::allowPowerChange(std::uint32_t, std::int64_t notification) {
    // A late answer to an earlier sleep must not let the present one go on.
    if (m_isPreparing && notification == m_lastNotification)
        m_inhibitor.release();
}

QString LogindPower::describe() const {
    return isServed() ? QStringLiteral("logind") : QStringLiteral("logind (not there now)");
}

void LogindPower::follow() {
    if (!isServed())
        return;
    // The end of a sleep may have been told while nobody listened.
    m_logind.getProperty(
        kLogindPath, kLogindManager, QStringLiteral("PreparingForSleep"), [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage)
                setPreparing(reply.arguments().value(0).value<QDBusVariant>().variant().toBool());
        });
}

void LogindPower::setPreparing(bool isPreparing) {
    if (isPreparing == m_isPreparing || !m_handler)
        return;
    m_isPreparing = isPreparing;
    // A copy: the handler may replace itself.
    const auto handler = m_handler;
    if (isPreparing) {
        handler(PowerMessage::SystemWillSleep, ++m_lastNotification);
    } else {
        m_inhibitor.take();
        handler(PowerMessage::SystemHasPoweredOn, 0);
    }
}
