// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// A well-known bus name that this process wants to have. If another process has it, that is logged, and this
// one waits for it. All arguments must outlive it.
class BusName : public QObject {
    Q_OBJECT

public:
    // Register the objects that answer under this name before: calls may come as soon as the name is ours.
    BusName(Bus& bus, QString name, SystemLog& log);
    // Gives the name back.
    ~BusName() override;

    bool isOwned() const { return m_isOwned; }

    // Calls `observer` after the name has become ours, or is no longer ours.
    Subscription observe(std::function<void()> observer);

private:
    void request();
    void takeInAnswer(const QDBusMessage& answer);
    void setOwned(bool isOwned);

    Bus& m_bus;
    QString m_name;
    SystemLog& m_log;
    bool m_isOwned = false;
    News m_observers;
    std::unique_ptr<BusSignal> m_acquired;
    std::unique_ptr<BusSignal> m_lost;
    Subscription m_connection;
};
