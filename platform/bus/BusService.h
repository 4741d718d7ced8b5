// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"
#include "platform/bus/BusSignal.h"

#include <QDBusServiceWatcher>

inline const QString kBusServiceName = QStringLiteral("org.freedesktop.DBus");
inline const QString kBusServicePath = QStringLiteral("/org/freedesktop/DBus");
inline const QString kPropertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

// A service by its well-known name, which may come late, go away and come back. The bus must outlive it.
class BusService : public QObject {
    Q_OBJECT

public:
    BusService(Bus& bus, QString name);

    // Whether somebody serves the name now. False until the bus has answered.
    bool isServed() const { return !m_owner.isEmpty(); }

    const QString& name() const { return m_name; }

    Bus& bus() const { return m_bus; }

    // Calls `observer` after the service has come, gone, or got another owner. It must not destroy this
    // object.
    Subscription observe(std::function<void()> observer);

    // Like Bus::call; replies that come after this object has gone are dropped. Starts the service if the bus
    // can.
    void call(const QString& path, const QString& interface, const QString& member,
              const QVariantList& arguments, Bus::Receiver receiver = {}, int timeoutMs = -1);
    void getProperty(const QString& path, const QString& interface, const QString& property,
                     Bus::Receiver receiver);
    // Listens to signals from the service itself only.
    [[nodiscard]] std::unique_ptr<BusSignal> listen(BusMatch match, Bus::Receiver receiver);

private:
    void follow();
    void setOwner(const QString& owner);

    Bus& m_bus;
    QString m_name;
    QString m_owner;
    // The watcher has told of an owner since, so the answer to the question about the owner is out of date.
    bool m_isOwnerTold = false;
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
    News m_observers;
    Subscription m_connection;
};
