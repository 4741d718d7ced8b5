// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/bus/BusService.h"
#include "platform/foundation/time/IdleMeter.h"
#include "platform/foundation/values/Result.h"

// The time since the last input as GNOME's compositor tells it. It would count for whoever asks, but nobody waits for
// a bus here: it is asked once at the start, and tells from then on when there is no input and when there is some.
// The first five seconds count as none; from then on it is exact to the delay of a message. Main thread only.
class MutterIdleTime : public IdleTime {
public:
    // Fails when nobody answers. `threshold` is what counts as none. The rest outlives it.
    static Result<std::unique_ptr<MutterIdleTime>>
    open(Bus& sessionBus, const Clock& clock, std::chrono::milliseconds threshold = IdleMeter::kThreshold);

    IdleReading read() override;
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
    // Mutter's numbers for what is watched; none is 0.
    quint32 m_idleWatch = 0;
    quint32 m_inputWatch = 0;
    bool m_isTelling = true;
    std::unique_ptr<BusSignal> m_signal;
    Subscription m_owner;
};
