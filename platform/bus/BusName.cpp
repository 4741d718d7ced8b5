// SPDX-License-Identifier: MIT
#include "platform/bus/BusName.h"

namespace {

// The bus's answers to a request for a name.
constexpr uint kInQueue = 2;

QDBusMessage question(const QString& member, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName, member);
    message.setArguments(arguments);
    return message;
}

} // namespace

BusName::BusName(Bus& bus, QString name, SystemLog& log)
    : m_bus(bus)
    , m_name(std::move(name))
    , m_log(log)
    , m_connection(bus.observe([this] { request(); })) {
    const auto listen = [this](const QString& member, bool isOwned) {
        return std::make_unique<BusSignal>(m_bus, BusMatch{kBusServicePath, kBusServiceName, member, m_name},
                                           [this, isOwned](const QDBusMessage& signal) {
                                               if (signal.service() == kBusServiceName)
                                                   setOwned(isOwned);
                                           });
    };
    m_acquired = listen(QStringLiteral("NameAcquired"), true);
    m_lost = listen(QStringLiteral("NameLost"), false);
    request();
}

BusName::~BusName() {
    if (m_bus.isConnected())
        m_bus.call(question(QStringLiteral("ReleaseName"), {m_name}), this, {});
}

Subscription BusName::observe(std::function<void()> observer) {
    return m_observers.observe(std::move(observer));
}

void BusName::request() {
    if (!m_bus.isConnected()) {
        setOwned(false);
        return;
    }
    // Without flags: nobody may take the name away and, if somebody has it, we are next in the queue.
    m_bus.call(question(QStringLiteral("RequestName"), {m_name, 0U}), this,
               [this](const QDBusMessage& answer) { takeInAnswer(answer); });
}

void BusName::takeInAnswer(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ReplyMessage)
        m_log.log(QStringLiteral("The bus does not give the name %1: ").arg(m_name) + answer.errorMessage());
    else if (answer.arguments().value(0).toUInt() == kInQueue)
        m_log.log(QStringLiteral("Another program goes by the name %1 on the bus.").arg(m_name));
}

void BusName::setOwned(bool isOwned) {
    if (std::exchange(m_isOwned, isOwned) != isOwned)
        m_observers.tell();
}
