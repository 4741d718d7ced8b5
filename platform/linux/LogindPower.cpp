// SPDX-License-Identifier: MIT
#include "platform/linux/LogindPower.h"

#include "platform/linux/Logind.h"

#include <QDBusVariant>
#include <QScopeGuard>

LogindPower::LogindPower(Bus& systemBus, SystemLog& log)
    : m_bus(systemBus)
    , m_logind(systemBus, kLogindService)
    , m_inhibitor(m_logind, QStringLiteral("sleep"), QStringLiteral("Stops the timer and saves the times"),
                  log)
    , m_service(m_logind.observe([this] { follow(); })) {
    m_prepareForSleep = m_logind.listen(
        {kLogindPath, kLogindManager, QStringLiteral("PrepareForSleep"), QString()},
        [this](const QDBusMessage& signal) { setPreparing(signal.arguments().value(0).toBool()); });
    m_inhibitor.take();
}

QString LogindPower::describe() const {
    return isServed() ? QStringLiteral("logind") : QStringLiteral("logind (not there now)");
}

void LogindPower::follow() {
    if (!isServed())
        return;
    // The end of a sleep may have been reported while nobody listened.
    m_logind.getProperty(
        kLogindPath, kLogindManager, QStringLiteral("PreparingForSleep"), [this](const QDBusMessage& reply) {
            if (reply.type() == QDBusMessage::ReplyMessage)
                setPreparing(reply.arguments().value(0).value<QDBusVariant>().variant().toBool());
        });
}

void LogindPower::setPreparing(bool isPreparing) {
    if (std::exchange(m_isPreparing, isPreparing) == isPreparing)
        return;
    if (!isPreparing) {
        m_inhibitor.take();
        m_news.tell(&Hearer::woke);
        return;
    }
    const auto letGo = qScopeGuard([this] {
        if (m_isPreparing)
            m_inhibitor.release();
    });
    m_news.tell(&Hearer::aboutToSleep);
}
