// SPDX-License-Identifier: MIT
#pragma once

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

    // Runs `task` every `interval`, each time at most `tolerance` late, until the timer is destroyed or
    // invalidated. The first time is one interval from now. Missed times are not made up for.
    [[nodiscard]] virtual std::unique_ptr<RunLoopTimer>
    scheduleRepeating(std::chrono::nanoseconds interval, std::chrono::nanoseconds tolerance, Task task) = 0;
    // Runs `task` once after `delay`.
    [[nodiscard]] virtual std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay,
                                                                     Task task) = 0;
    // Runs `task` on the main thread in the loop's next turn. May be called from any thread.
    virtual void performSoon(Task task) = 0;
};
