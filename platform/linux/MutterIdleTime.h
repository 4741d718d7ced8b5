// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/bus/BusService.h"
#include "platform/foundation/time/IdleMeter.h"
#include "platform/foundation/values/Result.h"

// The time since the last input, as GNOME's compositor reports it. It could be asked at any time, but nothing
// here waits for a bus: so it is asked once at the start, and then reports when there is no input and when
// there is some. The first five seconds count as zero; after that it is exact except for the delay of a
// message. Main thread only.
class MutterIdleTime : public IdleTime {
public:
    // Fails if nobody answers. Idle time below `threshold` counts as zero. The other arguments outlive it.
    static Result<std::unique_ptr<MutterIdleTime>>
    open(Bus& sessionBus, const Clock& clock, std::chrono::milliseconds threshold = IdleMeter::kThreshold);

    IdleReading read() override;
    bool tellsOfInput() const override { return m_isTelling; }
    QString describe() const override;

private:
    MutterIdleTime(Bus& sessionBus, const Clock& clock, std::chrono::milliseconds threshold);
    void follow();
    void watchForIdle();
    void watchForInput();
    void takeIn(quint32 watch);

    BusService m_service;
    std::chrono::milliseconds m_threshold;
    IdleMeter m_meter;
    // Mutter's numbers for the two watches; 0 means none.
    quint32 m_idleWatch = 0;
    quint32 m_inputWatch = 0;
    bool m_isTelling = true;
    std::unique_ptr<BusSignal> m_signal;
    Subscription m_owner;
};
