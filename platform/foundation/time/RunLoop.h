// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

// A timer that the run loop owes somebody. Destroying it invalidates it.
class RunLoopTimer {
public:
    virtual ~RunLoopTimer() = default;

    virtual bool isValid() const = 0;
    // No more firings. May be called from within the timer's own task.
    virtual void invalidate() = 0;
};

// The turns of the main thread. Timers fire in every mode: while menus are open and while something is dragged.
// A task that throws InternalInconsistency is logged and ended; the loop goes on.
class RunLoop {
public:
    using Task = std::function<void()>;

    virtual ~RunLoop() = default;

    // Fires every `interval`, each time up to `tolerance` late, until the answer is destroyed or invalidated. The
    // first firing is one interval from now. Missed firings are not made up for.
    [[nodiscard]] virtual std::unique_ptr<RunLoopTimer>
    scheduleRepeating(std::chrono::nanoseconds interval, std::chrono::nanoseconds tolerance, Task task) = 0;
    // Fires once after `delay`.
    [[nodiscard]] virtual std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay,
                                                                     Task task) = 0;
    // Runs `task` on the main thread in the loop's next turn. May be called from any thread.
    virtual void performSoon(Task task) = 0;
};
