// SPDX-License-Identifier: MIT
#include "platform/linux/OwnSession.h"

#include "platform/bus/BusMap.h"
#include "platform/linux/Logind.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <array>
#include <utility>

#include <unistd.h>

namespace {

// logind's microseconds reach further than nanoseconds do here.
constexpr qulonglong kLastMicrosecond =
    std::chrono::floor<std::chrono::microseconds>(std::chrono::nanoseconds::max()).count();

} // namespace

OwnSession::OwnSession(Bus& systemBus, SystemLog& log, QString sessionId)
    : m_logind(systemBus, kLogindService)
    , m_log(log)
    , m_sessionId(std::move(sessionId))
    , m_requestObservers(new Listeners<std::function<void(bool)>>)
    , m_service(m_logind.observe([this] { follow(); })) {
    m_sessionNew = m_logind.listen({kLogindPath, kLogindManager, QStringLiteral("SessionNew"), QString()},
                                   [this](const QDBusMessage&) {
                                       if (!m_isKnown)
                                           follow();
                                   });
}

Subscription OwnSession::observe(std::function<void()> observer) {
    return m_observers.observe(std::move(observer));
}

Subscription OwnSession::observeRequests(std::function<void(bool)> observer) {
    return m_requestObservers->add(std::move(observer));
}

void OwnSession::follow() {
    ++m_search;
    m_step = 0;
    m_signals.clear();
    // Without logind the last report stays: a restart of logind does not bring a session to the front.
    if (m_logind.isServed())
        next();
}

void OwnSession::next() {
    static constexpr std::array<Step, 3> kSteps{&OwnSession::findByName, &OwnSession::findByProcess,
                                                &OwnSession::findByUser};
    if (m_step < kSteps.size())
        (this->*kSteps[m_step++])();
    else
        m_log.log(QStringLiteral("No login session of our own: switches and locks of it go unseen"));
}

void OwnSession::findByName() {
    if (m_sessionId.isEmpty())
        next();
    else
        ask(QStringLiteral("GetSession"), m_sessionId);
}

void OwnSession::findByProcess() {
    ask(QStringLiteral("GetSessionByPID"), static_cast<uint>(getpid()));
}

void OwnSession::findByUser() {
    // Programs that are started by the user's service manager belong to no session.
    const auto showDisplay = [this, search = m_search](const QDBusMessage& reply) {
        if (search != m_search)
            return;
        QString name;
        QDBusObjectPath path;
        if (reply.type() == QDBusMessage::ReplyMessage) {
            const auto display =
                qvariant_cast<QDBusArgument>(reply.arguments().value(0).value<QDBusVariant>().variant());
            if (display.currentSignature() == QLatin1String("(so)")) {
                display.beginStructure();
                display >> name >> path;
                display.endStructure();
            }
        }
        name.isEmpty() ? next() : tryPath(path.path());
    };
    const auto showUser = [this, showDisplay, search = m_search](const QDBusMessage& reply) {
        if (search != m_search)
            return;
        if (reply.type() != QDBusMessage::ReplyMessage)
            return next();
        const QString user = reply.arguments().value(0).value<QDBusObjectPath>().path();
        m_logind.getProperty(user, kLogindUser, QStringLiteral("Display"), showDisplay);
    };
    m_logind.call(kLogindPath, kLogindManager, QStringLiteral("GetUser"), {static_cast<uint>(getuid())},
                  showUser);
}

void OwnSession::ask(const QString& method, const QVariant& argument) {
    m_logind.call(kLogindPath, kLogindManager, method, {argument},
                  [this, search = m_search](const QDBusMessage& reply) {
                      if (search != m_search)
                          return;
                      if (reply.type() == QDBusMessage::ReplyMessage)
                          tryPath(reply.arguments().value(0).value<QDBusObjectPath>().path());
                      else
                          next();
                  });
}

void OwnSession::tryPath(const QString& path) {
    // Listens first and reads then, so that no change in between is missed.
    listen(path);
    m_logind.call(path, kPropertiesInterface, QStringLiteral("GetAll"), {kLogindSession},
                  [this, search = m_search](const QDBusMessage& reply) {
                      if (search != m_search)
                          return;
                      const QVariantMap properties = mapIn(reply, "a{sv}", 0);
                      if (reply.type() != QDBusMessage::ReplyMessage || properties.isEmpty()) {
                          m_signals.clear();
                          return next();
                      }
                      m_isKnown = true;
                      adopt(properties);
                  });
}

void OwnSession::listen(const QString& path) {
    const auto changed = [this](const QDBusMessage& signal) {
        if (m_isKnown && signal.arguments().value(0).toString() == kLogindSession)
            adopt(mapIn(signal, "sa{sv}as", 1));
    };
    const auto request = [this](const QDBusMessage& signal) {
        const bool shallLock = signal.member() == QLatin1String("Lock");
        m_requestObservers->forEach([&](const std::function<void(bool)>& observer) { observer(shallLock); });
    };
    m_signals.push_back(m_logind.listen(
        {path, kPropertiesInterface, QStringLiteral("PropertiesChanged"), QString()}, changed));
    m_signals.push_back(m_logind.listen({path, kLogindSession, QStringLiteral("Lock"), QString()}, request));
    m_signals.push_back(
        m_logind.listen({path, kLogindSession, QStringLiteral("Unlock"), QString()}, request));
}

void OwnSession::adopt(const QVariantMap& properties) {
    const auto before = std::tuple(m_isActive, m_isLocked, m_isGreeter);
    m_isActive = properties.value(QStringLiteral("Active"), m_isActive).toBool();
    m_isLocked = properties.value(QStringLiteral("LockedHint"), m_isLocked).toBool();
    if (const QString kind = properties.value(QStringLiteral("Class")).toString(); !kind.isEmpty())
        m_isGreeter = kind == QLatin1String("greeter");
    const bool wasIdle =
        std::exchange(m_isIdle, properties.value(QStringLiteral("IdleHint"), m_isIdle).toBool());
    if (const QVariant since = properties.value(QStringLiteral("IdleSinceHintMonotonic")); since.isValid())
        m_idleSince = std::chrono::microseconds(std::min(since.toULongLong(), kLastMicrosecond));
    if (before != std::tuple(m_isActive, m_isLocked, m_isGreeter))
        m_observers.tell();
    if (wasIdle && !m_isIdle)
        m_inputs.tell();
}
