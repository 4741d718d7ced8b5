// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <chrono>
#include <functional>
#include <memory>

// A timer of the run loop. Destroying it stops it.
class RunLoopTimer {
public:
    virtual ~RunLoopTimer() = default;

    virtual bool isValid() const = 0;
    // Stops it. May be called from the timer's own task.
    virtual void invalidate() = 0;
};

// The main thread's event loop. Timers fire in every mode: also while menus are open and while something is
// dragged. If a task throws InternalInconsistency, that is logged and the loop goes on.
class RunLoop {
public:
    using Task = std::function<void()>;

    virtual ~RunLoop() = default;

    // Told around each of the loop's waits. Both may be empty.
    struct WaitHearer {
        // The wait is over, and nothing of what ended it has been handled yet.
        std::function<void()> woken;
        // Nothing is left to do. The loop may go round once more before it really waits.
        std::function<void()> aboutToWait;
    };

    // Runs `task` every `interval`, each time at most `tolerance` early or late, until the timer is destroyed or
    // invalidated. The first time is one interval from now. Missed times are not made up for. A tolerance lets
    // several timers, also those of other programs, share one wake-up.
    [[nodiscard]] virtual std::unique_ptr<RunLoopTimer>
    scheduleRepeating(std::chrono::nanoseconds interval, std::chrono::nanoseconds tolerance, Task task) = 0;
    // Runs `task` once after `delay`, never earlier.
    [[nodiscard]] std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay, Task task) {
        return scheduleOnce(delay, {}, std::move(task));
    }
    // The same, at most `tolerance` early or late.
    [[nodiscard]] virtual std::unique_ptr<RunLoopTimer>
    scheduleOnce(std::chrono::nanoseconds delay, std::chrono::nanoseconds tolerance, Task task) = 0;
    // Runs `task` on the main thread in the loop's next turn. May be called from any thread.
    virtual void performSoon(Task task) = 0;
    // An empty subscription if the loop cannot tell.
    virtual Subscription observeWaits(WaitHearer hearer) = 0;
};
