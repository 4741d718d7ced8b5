// SPDX-License-Identifier: MIT
#include "tests/fakes/ManualRunLoop.h"

#include "platform/foundation/values/Assertions.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int kTurnLimit = 10000;

} // namespace

struct ManualRunLoop::State {
    std::chrono::nanoseconds due;
    std::chrono::nanoseconds interval;
    Task task;
    bool valid = true;

    bool repeats() const { return interval > std::chrono::nanoseconds::zero(); }
};

class ManualRunLoop::Timer : public RunLoopTimer {
public:
    explicit Timer(std::shared_ptr<State> state)
        : m_state(std::move(state)) {}

    ~Timer() override { m_state->valid = false; }

    bool isValid() const override { return m_state->valid; }

    void invalidate() override { m_state->valid = false; }

private:
    std::shared_ptr<State> m_state;
};

ManualRunLoop::ManualRunLoop(HandClock& clock)
    : m_clock(clock) {}

ManualRunLoop::~ManualRunLoop() = default;

std::unique_ptr<RunLoopTimer> ManualRunLoop::scheduleRepeating(std::chrono::nanoseconds interval,
                                                               std::chrono::nanoseconds, Task task) {
    if (interval <= std::chrono::nanoseconds::zero())
        throw std::invalid_argument("a timer that repeats without a pause never lets the clock go on");
    return schedule(interval, interval, std::move(task));
}

std::unique_ptr<RunLoopTimer> ManualRunLoop::scheduleOnce(std::chrono::nanoseconds delay,
                                                          std::chrono::nanoseconds, Task task) {
    return schedule(delay, {}, std::move(task));
}

void ManualRunLoop::performSoon(Task task) {
    const std::lock_guard lock(m_soonMutex);
    m_soon.push_back(std::move(task));
}

void ManualRunLoop::advance(std::chrono::nanoseconds time) {
    const auto end = m_clock.monotonic() + time;
    runPending();
    m_waits.tell(&WaitHearer::aboutToWait);
    while (const auto next = nextDue(end)) {
        if (next->due > m_clock.monotonic())
            m_clock.advance(next->due - m_clock.monotonic());
        wake();
        // Whoever was told may have done what the timer was for.
        if (next->valid)
            fire(next);
        runPending();
        m_waits.tell(&WaitHearer::aboutToWait);
    }
    if (m_clock.monotonic() < end)
        m_clock.advance(end - m_clock.monotonic());
}

void ManualRunLoop::runPending() {
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

Subscription ManualRunLoop::observeWaits(WaitHearer hearer) {
    return tellsOfWaits ? m_waits.observe(std::move(hearer)) : Subscription();
}

void ManualRunLoop::wake() {
    run([this] { m_waits.tell(&WaitHearer::woken); });
}

int ManualRunLoop::activeTimers() const {
    return int(std::ranges::count_if(m_timers, [](const auto& timer) { return timer->valid; }));
}

std::unique_ptr<RunLoopTimer> ManualRunLoop::schedule(std::chrono::nanoseconds delay,
                                                      std::chrono::nanoseconds interval, Task task) {
    m_timers.push_back(
        std::make_shared<State>(State{m_clock.monotonic() + delay, interval, std::move(task)}));
    return std::make_unique<Timer>(m_timers.back());
}

std::shared_ptr<ManualRunLoop::State> ManualRunLoop::nextDue(std::chrono::nanoseconds end) {
    std::erase_if(m_timers, [](const auto& timer) { return !timer->valid; });
    const auto first = std::ranges::min_element(m_timers, {}, [](const auto& timer) { return timer->due; });
    return first != m_timers.end() && (*first)->due <= end ? *first : nullptr;
}

void ManualRunLoop::fire(const std::shared_ptr<State>& timer) {
    if (timer->repeats())
        timer->due += ((m_clock.monotonic() - timer->due) / timer->interval + 1) * timer->interval;
    else
        timer->valid = false;
    run(timer->task);
}

void ManualRunLoop::run(const Task& task) {
    try {
        task();
    } catch (const InternalInconsistency& failure) {
        m_failures << failure.logLine();
    }
}
