// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/RunLoop.h"

#include <optional>

// When an activity source looks what is in front, and ticks: ten times a second. But most of these ticks would find
// nothing new, and a battery pays for them. So where the loop tells of its waits, ticks come only when they are needed,
// and what is credited is the same: whatever ends a wait finds the ticks caught up as if the last one had just come,
// and whatever it changes is looked at before the next wait. Main thread only.
class Ticks {
public:
    static constexpr std::chrono::milliseconds kInterval{100};
    static constexpr std::chrono::milliseconds kTolerance{50};

    struct Work {
        // Looks what is in front, and ticks.
        std::function<void()> tick;
        // Only looks. Answers whether something else is in front than at the last look.
        std::function<bool()> look;
        // Credits what the ticks until then would have credited.
        std::function<void(Instant until)> credit;
        // When the next tick is needed, as things are now; absent: when something happens.
        std::function<std::optional<Instant>()> needed;
        // Whether somebody may be looking at the times.
        std::function<bool()> isSeen;
    };

    // Loop and clock outlive it.
    Ticks(RunLoop& runLoop, Clock& clock, Work work);
    Ticks(const Ticks&) = delete;
    Ticks& operator=(const Ticks&) = delete;

    // Credits what steady ticks would have credited so far, for whoever ends the counting outside of a tick.
    void creditMissed();
    // When the next one is due at the latest; absent if ticks are steady or none is needed.
    const std::optional<Instant>& due() const { return m_due; }

private:
    // Ticks if a tick is due, or would be if they were steady.
    void catchUp();
    void plan();

    RunLoop& m_runLoop;
    Clock& m_clock;
    Work m_work;
    Instant m_last;
    std::optional<Instant> m_due;
    // Something else has come to the front since the last tick.
    bool m_hasNews = false;
    std::unique_ptr<RunLoopTimer> m_timer;
    Subscription m_waits;
};
