// SPDX-License-Identifier: MIT
#include "platform/bus/BusName.h"

namespace {

QDBusMessage question(const QString& member, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName, member);
    message.setArguments(arguments);
    return message;
}

} // namespace

BusName::BusName(Bus& bus, QString name, std::function<void()> changed)
    : m_bus(bus)
    , m_name(std::move(name))
    , m_changed(std::move(changed))
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

void BusName::request() {
    if (!m_bus.isConnected()) {
        setOwned(false);
        return;
    }
    // No flag: nobody may take it away, and where somebody has it we are next.
    m_bus.call(question(QStringLiteral("RequestName"), {m_name, 0U}), this, {});
}

void BusName::setOwned(bool isOwned) {
    if (std::exchange(m_isOwned, isOwned) != isOwned)
        m_changed();
}
