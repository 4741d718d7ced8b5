// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// A well-known name that this process wants to be known by. Where somebody else has it, the log says so and it is
// waited for. The rest must outlive it.
class BusName : public QObject {
    Q_OBJECT

public:
    // What answers to the name must be there before: calls may come as soon as it is ours.
    BusName(Bus& bus, QString name, SystemLog& log);
    // Gives the name back.
    ~BusName() override;

    bool isOwned() const { return m_isOwned; }

    // Calls `observer` after the name has become ours, or is ours no more.
    Subscription observe(std::function<void()> observer);

private:
    void request();
    void takeInAnswer(const QDBusMessage& answer);
    void setOwned(bool isOwned);

    Bus& m_bus;
    QString m_name;
    SystemLog& m_log;
    bool m_isOwned = false;
    QExplicitlySharedDataPointer<Listeners<std::function<void()>>> m_observers;
    std::unique_ptr<BusSignal> m_acquired;
    std::unique_ptr<BusSignal> m_lost;
    Subscription m_connection;
};
