// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"
#include "tests/desktop/harness/WaitFor.h"

// Whether the bus, or the error of one that is not there, answers. The bus keeps the order: what was sent
// through it before has come, and what was asked of it before has been answered.
inline bool roundTrip(Bus& bus) {
    QObject context;
    bool isThrough = false;
    bus.call(QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                            QStringLiteral("GetId")),
             &context, [&](const QDBusMessage&) { isThrough = true; });
    return waitFor([&] { return isThrough; });
}

// The same through a service, whose answers to what it was asked before come first.
inline bool roundTrip(Bus& bus, const QString& service, const QString& path, const QString& interface,
                      const QString& property) {
    QObject context;
    bool isThrough = false;
    auto question =
        QDBusMessage::createMethodCall(service, path, kPropertiesInterface, QStringLiteral("Get"));
    question << interface << property;
    bus.call(question, &context, [&](const QDBusMessage&) { isThrough = true; });
    return waitFor([&] { return isThrough; });
}
