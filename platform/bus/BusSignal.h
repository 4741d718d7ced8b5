// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"

// Which signals to receive. An empty part matches everything.
struct BusMatch {
    QString path;
    QString interface;
    QString member;
    // The signal's first argument, a text.
    QString firstArgument;
};

// Receives signals of a bus from any sender for as long as it lives, also after a reconnection. The bus must
// outlive it.
class BusSignal : public QObject {
    Q_OBJECT

public:
    BusSignal(Bus& bus, BusMatch match, Bus::Receiver receiver);

private:
    Q_SLOT void take(const QDBusMessage& message);
    void subscribe();

    Bus& m_bus;
    BusMatch m_match;
    // Shared, because the receiver may destroy this object while it runs.
    std::shared_ptr<const Bus::Receiver> m_receiver;
    Subscription m_connection;
};
