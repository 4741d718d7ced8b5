// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PowerEvents.h"
#include "platform/linux/DelayInhibitor.h"

// Sleep and waking as logind reports them. logind never asks whether the machine may sleep, and does not wait
// long for those who hear of it. `systemBus` must outlive it.
class LogindPower : public PowerEvents {
public:
    LogindPower(Bus& systemBus, SystemLog& log);

    // False while there is no system bus; sleep is reported once there is one.
    bool tellsOfSleep() const override { return m_bus.isConnected(); }
    QString describe() const override;

    // Whether logind is there and reports every sleep.
    bool isServed() const { return m_logind.isServed(); }

    // Whether the machine would wait for this process before it sleeps.
    bool isDelaying() const { return m_inhibitor.isHeld(); }

private:
    void follow();
    void setPreparing(bool isPreparing);

    Bus& m_bus;
    BusService m_logind;
    DelayInhibitor m_inhibitor;
    bool m_isPreparing = false;
    std::unique_ptr<BusSignal> m_prepareForSleep;
    Subscription m_service;
};
