// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/Bus.h"

// Which signals to listen to. Empty parts match all.
struct BusMatch {
    QString path;
    QString interface;
    QString member;
    // The signal's first argument, a text.
    QString firstArgument;
};

// Listens to signals of a bus, whoever sends them, for as long as it lives: a connection that is opened anew
// is listened to as well. The bus must outlive it.
class BusSignal : public QObject {
    Q_OBJECT

public:
    BusSignal(Bus& bus, BusMatch match, Bus::Receiver receiver);

private:
    Q_SLOT void take(const QDBusMessage& message);
    void subscribe();

    Bus& m_bus;
    BusMatch m_match;
    // Shared, because the receiver may end the listening while it runs.
    std::shared_ptr<const Bus::Receiver> m_receiver;
    Subscription m_connection;
};
