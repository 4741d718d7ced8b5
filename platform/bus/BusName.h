// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// A well-known name that this process wants to be known by. Where somebody else has it, it is waited for. The bus
// must outlive it.
class BusName : public QObject {
    Q_OBJECT

public:
    // Calls `changed` after the name has become ours, or is ours no more.
    BusName(Bus& bus, QString name, std::function<void()> changed);
    // Gives the name back.
    ~BusName() override;

    bool isOwned() const { return m_isOwned; }

private:
    void request();
    void setOwned(bool isOwned);

    Bus& m_bus;
    QString m_name;
    std::function<void()> m_changed;
    bool m_isOwned = false;
    std::unique_ptr<BusSignal> m_acquired;
    std::unique_ptr<BusSignal> m_lost;
    Subscription m_connection;
};
