// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/Assertions.h"
#include "platform/foundation/Clock.h"
#include "platform/foundation/RunLoop.h"

#include <QStringList>

#include <algorithm>
#include <chrono>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <utility>
#include <vector>

// A clock that stands still until it is turned.
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

    // The user or the network sets the wall clock; the others do not notice.
    void setWall(Date date) {
        m_wall = date;
        m_sinceWallSet = {};
    }

private:
    Date m_wall;
    std::chrono::nanoseconds m_sinceWallSet{};
    // Not zero, as no real clock is: a zero that means "never" shows.
    std::chrono::nanoseconds m_monotonic = std::chrono::hours(1);
    std::chrono::nanoseconds m_slept{};
};

// A run loop that turns only when told to, on a hand-turned clock that must outlive it. Timers may outlive
// the loop.
class ManualRunLoop : public RunLoop {
public:
    explicit ManualRunLoop(HandClock& clock)
        : m_clock(clock) {}

    std::unique_ptr<RunLoopTimer> scheduleRepeating(std::chrono::nanoseconds interval,
                                                    std::chrono::nanoseconds, Task task) override {
        if (interval <= std::chrono::nanoseconds::zero())
            throw std::invalid_argument("a timer that repeats without a pause never lets the clock go on");
        return schedule(interval, interval, std::move(task));
    }

    std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay, Task task) override {
        return schedule(delay, {}, std::move(task));
    }

    void performSoon(Task task) override {
        const std::lock_guard lock(m_soonMutex);
        m_soon.push_back(std::move(task));
    }

    // Lets `time` pass, from one due timer to the next in the order in which they are due; timers due at the
    // same instant fire in the order in which they were made. What was asked for soon runs before each.
    // Timers that are overdue when it begins (the clock was turned past them) fire once, at the time it is.
    void advance(std::chrono::nanoseconds time) {
        const auto end = m_clock.monotonic() + time;
        runPending();
        while (const auto next = nextDue(end)) {
            if (next->due > m_clock.monotonic())
                m_clock.advance(next->due - m_clock.monotonic());
            fire(next);
            runPending();
        }
        if (m_clock.monotonic() < end)
            m_clock.advance(end - m_clock.monotonic());
    }

    // Runs what was asked for soon, and what that asks for, until nothing is left.
    void runPending() {
        for (int turn = 0; turn < kTurnLimit; ++turn) {
            std::vector<Task> tasks;
            {
                const std::lock_guard lock(m_soonMutex);
                tasks.swap(m_soon);
            }
            if (tasks.empty())
                return;
            for (const Task& task : tasks)
                run(task);
        }
        throw std::logic_error("tasks keep asking for a further turn of the loop");
    }

    // How many timers will still fire.
    int activeTimers() const {
        return int(std::ranges::count_if(m_timers, [](const auto& timer) { return timer->valid; }));
    }

    // The log lines of the assertion failures that tasks ended with.
    const QStringList& failures() const { return m_failures; }

private:
    static constexpr int kTurnLimit = 10000;

    struct State {
        std::chrono::nanoseconds due;
        std::chrono::nanoseconds interval;
        Task task;
        bool valid = true;

        bool repeats() const { return interval > std::chrono::nanoseconds::zero(); }
    };

    class Timer : public RunLoopTimer {
    public:
        explicit Timer(std::shared_ptr<State> state)
            : m_state(std::move(state)) {}

        ~Timer() override { m_state->valid = false; }

        bool isValid() const override { return m_state->valid; }

        void invalidate() override { m_state->valid = false; }

    private:
        std::shared_ptr<State> m_state;
    };

    std::unique_ptr<RunLoopTimer> schedule(std::chrono::nanoseconds delay, std::chrono::nanoseconds interval,
                                           Task task) {
        m_timers.push_back(
            std::make_shared<State>(State{m_clock.monotonic() + delay, interval, std::move(task)}));
        return std::make_unique<Timer>(m_timers.back());
    }

    std::shared_ptr<State> nextDue(std::chrono::nanoseconds end) {
        std::erase_if(m_timers, [](const auto& timer) { return !timer->valid; });
        const auto first =
            std::ranges::min_element(m_timers, {}, [](const auto& timer) { return timer->due; });
        return first != m_timers.end() && (*first)->due <= end ? *first : nullptr;
    }

    // The share keeps the task alive when it destroys its own timer.
    void fire(const std::shared_ptr<State>& timer) {
        if (timer->repeats())
            timer->due += ((m_clock.monotonic() - timer->due) / timer->interval + 1) * timer->interval;
        else
            timer->valid = false;
        run(timer->task);
    }

    void run(const Task& task) {
        try {
            task();
        } catch (const InternalInconsistency& failure) {
            m_failures << failure.logLine();
        }
    }

    HandClock& m_clock;
    std::vector<std::shared_ptr<State>> m_timers;
    std::mutex m_soonMutex;
    std::vector<Task> m_soon;
    QStringList m_failures;
};
