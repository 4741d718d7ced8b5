// SPDX-License-Identifier: MIT
#include "platform/bus/BusService.h"

BusService::BusService(Bus& bus, QString name)
    : m_bus(bus)
    , m_name(std::move(name))
    , m_connection(bus.observe([this] { follow(); })) {
    follow();
}

Subscription BusService::observe(std::function<void()> observer) {
    return m_observers.observe(std::move(observer));
}

void BusService::follow() {
    m_watcher.reset();
    if (!m_bus.isConnected()) {
        setOwner(QString());
        return;
    }
    m_isOwnerTold = false;
    m_watcher = std::make_unique<QDBusServiceWatcher>(m_name, m_bus.connection(),
                                                      QDBusServiceWatcher::WatchForOwnerChange);
    QObject::connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
                     [this](const QString&, const QString&, const QString& owner) {
                         m_isOwnerTold = true;
                         setOwner(owner);
                     });
    auto question = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                   QStringLiteral("GetNameOwner"));
    question << m_name;
    // The watcher is the context, so that answers of a lost connection are dropped.
    m_bus.call(question, m_watcher.get(), [this](const QDBusMessage& reply) {
        // An error means that nobody has the name.
        if (!m_isOwnerTold && reply.type() == QDBusMessage::ReplyMessage)
            setOwner(reply.arguments().value(0).toString());
    });
}

void BusService::setOwner(const QString& owner) {
    if (owner == m_owner)
        return;
    m_owner = owner;
    m_observers.tell();
}

void BusService::call(const QString& path, const QString& interface, const QString& member,
                      const QVariantList& arguments, Bus::Receiver receiver, int timeoutMs) {
    auto message = QDBusMessage::createMethodCall(m_name, path, interface, member);
    message.setArguments(arguments);
    m_bus.call(message, this, std::move(receiver), timeoutMs);
}

void BusService::getProperty(const QString& path, const QString& interface, const QString& property,
                             Bus::Receiver receiver) {
    call(path, kPropertiesInterface, QStringLiteral("Get"), {interface, property}, std::move(receiver));
}

std::unique_ptr<BusSignal> BusService::listen(BusMatch match, Bus::Receiver receiver) {
    return std::make_unique<BusSignal>(m_bus, std::move(match),
                                       [this, receiver = std::move(receiver)](const QDBusMessage& message) {
                                           if (message.service() == m_owner)
                                               receiver(message);
                                       });
}
