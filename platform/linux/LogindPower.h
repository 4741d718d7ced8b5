// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PowerEvents.h"
#include "platform/linux/DelayInhibitor.h"

// Sleep and wake as logind tells of them. logind never asks whether the machine may sleep: the first message
// is SystemWillSleep, and the sleep waits for allowPowerChange, though logind's patience is short.
// `systemBus` must outlive it.
class LogindPower : public PowerEvents {
public:
    LogindPower(Bus& systemBus, SystemLog& log);

    // Zero while there is no system bus; the handler is kept and called once there is one.
    std::uint32_t registerForSystemPower(Handler handler) override;
    void allowPowerChange(std::uint32_t rootPort, std::int64_t notification) override;
    QString describe() const override;

    // Whether logind is there, and every sleep is told of.
    bool isServed() const { return m_logind.isServed(); }

    // Whether a sleep would wait for us.
    bool isDelaying() const { return m_inhibitor.isHeld(); }

private:
    void follow();
    void setPreparing(bool isPreparing);

    Bus& m_bus;
    BusService m_logind;
    DelayInhibitor m_inhibitor;
    Handler m_handler;
    bool m_isPreparing = false;
    std::int64_t m_lastNotification = 0;
    std::unique_ptr<BusSignal> m_prepareForSleep;
    Subscription m_service;
};
