// SPDX-License-Identifier: MIT
#include "platform/bus/BusSignal.h"

BusSignal::BusSignal(Bus& bus, BusMatch match, Bus::Receiver receiver)
    : m_bus(bus)
    , m_match(std::move(match))
    , m_receiver(std::make_shared<const Bus::Receiver>(std::move(receiver)))
    , m_connection(bus.observe([this] { subscribe(); })) {
    subscribe();
}

void BusSignal::subscribe() {
    if (!m_bus.isConnected())
        return;
    // Matched without the sender, because QtDBus would wait until the bus names its owner.
    const QStringList arguments =
        m_match.firstArgument.isEmpty() ? QStringList() : QStringList{m_match.firstArgument};
    m_bus.connection().connect(QString(), m_match.path, m_match.interface, m_match.member, arguments,
                               QString(), this, SLOT(take(QDBusMessage)));
}

void BusSignal::take(const QDBusMessage& message) {
    const auto receiver = m_receiver;
    m_bus.deliver(*receiver, message);
}
