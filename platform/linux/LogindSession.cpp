// SPDX-License-Identifier: MIT
#include "platform/linux/LogindSession.h"

#include "platform/linux/Logind.h"

#include <QScopeGuard>

LogindSession::LogindSession(OwnSession& session, SystemLog& log)
    : m_session(session)
    , m_inhibitor(session.logind(), QStringLiteral("shutdown"), QStringLiteral("Saves the times"), log)
    , m_wasActive(session.isActive())
    , m_changes(session.observe([this] { follow(); })) {
    m_prepareForShutdown = session.logind().listen(
        {kLogindPath, kLogindManager, QStringLiteral("PrepareForShutdown"), QString()},
        [this](const QDBusMessage& signal) { prepareForShutdown(signal.arguments().value(0).toBool()); });
    m_inhibitor.take();
}

QString LogindSession::describe() const {
    return m_session.isKnown() ? QStringLiteral("logind") : QStringLiteral("logind (no session known)");
}

void LogindSession::follow() {
    if (m_session.isActive() == m_wasActive)
        return;
    m_wasActive = m_session.isActive();
    m_news.tell(m_wasActive ? &Hearer::cameToFront : &Hearer::wentToBackground);
}

void LogindSession::prepareForShutdown(bool isPreparing) {
    if (std::exchange(m_isPreparing, isPreparing) == isPreparing)
        return;
    if (!isPreparing) {
        // Cancelled: the next shutdown must wait for this process again.
        m_inhibitor.take();
        return;
    }
    const auto letGo = qScopeGuard([this] { m_inhibitor.release(); });
    m_news.tell(&Hearer::aboutToEnd);
}
