// SPDX-License-Identifier: MIT
#include "platform/linux/DelayInhibitor.h"

#include "platform/linux/Logind.h"

DelayInhibitor::DelayInhibitor(BusService& logind, QString what, QString why, SystemLog& log)
    : m_logind(logind)
    , m_what(std::move(what))
    , m_why(std::move(why))
    , m_log(log)
    , m_service(logind.observe([this] { follow(); })) {}

void DelayInhibitor::take() {
    m_isWanted = true;
    if (!isHeld() && m_logind.isServed())
        request();
}

void DelayInhibitor::release() {
    m_isWanted = false;
    ++m_lastRequest;
    m_lock = {};
}

void DelayInhibitor::follow() {
    // An inhibitor of an earlier logind is worthless for the next one.
    m_lock = {};
    if (m_isWanted && m_logind.isServed())
        request();
}

void DelayInhibitor::request() {
    const int request = ++m_lastRequest;
    const auto granted = [this, request](const QDBusMessage& reply) {
        // An answer that is not kept closes its descriptor, so logind drops the inhibitor.
        if (request != m_lastRequest)
            return;
        m_lock = reply.arguments().value(0).value<QDBusUnixFileDescriptor>();
        if (!isHeld())
            m_log.log(QStringLiteral("logind grants no delay of %1: %2").arg(m_what, reply.errorMessage()));
    };
    m_logind.call(kLogindPath, kLogindManager, QStringLiteral("Inhibit"),
                  {m_what, QStringLiteral("Ticklog"), m_why, QStringLiteral("delay")}, granted);
}
