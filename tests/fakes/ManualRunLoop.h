// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/RunLoop.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

// A clock that moves only when told.
class HandClock : public Clock {
public:
    explicit HandClock(Date start = Date(std::chrono::sys_days(std::chrono::year(2026) / 1 / 5)) +
                                    std::chrono::hours(9))
        : m_wall(start) {}

    Date now() const override {
        return Date(std::chrono::floor<Date::duration>(m_wall.time_since_epoch() + m_sinceWallSet));
    }

    std::chrono::nanoseconds monotonic() const override { return m_monotonic; }

    std::chrono::nanoseconds sinceBoot() const override { return m_monotonic + m_slept; }

    // Time passes while the machine is awake.
    void advance(std::chrono::nanoseconds time) {
        m_monotonic += time;
        m_sinceWallSet += time;
    }

    // Time passes while the machine sleeps: the monotonic clock stands still.
    void sleepFor(std::chrono::nanoseconds time) {
        m_slept += time;
        m_sinceWallSet += time;
    }

    // The user or the network sets the wall clock; the others do not change.
    void setWall(Date date) {
        m_wall = date;
        m_sinceWallSet = {};
    }

private:
    Date m_wall;
    std::chrono::nanoseconds m_sinceWallSet{};
    // Not zero, like every real clock: so a zero that should mean "never" is noticed.
    std::chrono::nanoseconds m_monotonic = std::chrono::hours(1);
    std::chrono::nanoseconds m_slept{};
};

// A run loop that turns only when told to, on a hand-turned clock that must outlive it. Timers may outlive
// the loop.
class ManualRunLoop : public RunLoop {
public:
    explicit ManualRunLoop(HandClock& clock);
    ~ManualRunLoop() override;

    std::unique_ptr<RunLoopTimer> scheduleRepeating(std::chrono::nanoseconds interval,
                                                    std::chrono::nanoseconds tolerance, Task task) override;

    using RunLoop::scheduleOnce;
    std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay,
                                               std::chrono::nanoseconds tolerance, Task task) override;

    void performSoon(Task task) override;

    // Empty unless the loop was told to tell of its waits before.
    Subscription observeWaits(WaitHearer hearer) override;

    // Lets `time` pass. Timers fire in the order in which they are due; those due at the same instant, in the
    // order in which they were made. Tasks of performSoon() run before each. Timers that are already overdue
    // at the start fire once, at the present time.
    void advance(std::chrono::nanoseconds time);

    // Something comes from outside now, such as an event of the desktop: tells that the wait is over. The next wait
    // begins with advance().
    void wake();

    // Runs the tasks of performSoon(), and those that they add, until none is left.
    void runPending();

    // How many timers will still fire.
    int activeTimers() const;

    // The log lines of the assertion failures that tasks ended with.
    const QStringList& failures() const { return m_failures; }

    // Whether observeWaits() can be subscribed to.
    bool tellsOfWaits = false;

private:
    struct State;
    class Timer;

    std::unique_ptr<RunLoopTimer> schedule(std::chrono::nanoseconds delay, std::chrono::nanoseconds interval,
                                           Task task);

    std::shared_ptr<State> nextDue(std::chrono::nanoseconds end);

    // This reference keeps the task alive if it destroys its own timer.
    void fire(const std::shared_ptr<State>& timer);

    void run(const Task& task);

    HandClock& m_clock;
    std::vector<std::shared_ptr<State>> m_timers;
    std::mutex m_soonMutex;
    std::vector<Task> m_soon;
    QStringList m_failures;
    NewsOf<WaitHearer> m_waits;
};
