// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"

#include "platform/foundation/values/Assertions.h"

#include <QTimer>

namespace {

// Runs a task. If it breaks a contract, only this task is lost.
void runGuarded(const RunLoop::Task& task, SystemLog& log) {
    try {
        task();
    } catch (const InternalInconsistency& failure) {
        log.log(failure.logLine());
    }
}

class QtRunLoopTimer : public RunLoopTimer {
public:
    QtRunLoopTimer(std::chrono::nanoseconds interval, bool repeats, RunLoop::Task task, SystemLog& log)
        : m_task(std::make_shared<const RunLoop::Task>(std::move(task)))
        , m_log(log) {
        // Coarse timers may be early, and an early tick costs one more wake-up.
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setSingleShot(!repeats);
        m_timer.setInterval(std::chrono::duration_cast<std::chrono::milliseconds>(interval));
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            // Copies, because the task may destroy this timer, and so itself, before it returns.
            const auto held = m_task;
            SystemLog& heldLog = m_log;
            runGuarded(*held, heldLog);
        });
        m_timer.start();
    }

    bool isValid() const override { return m_timer.isActive(); }
    void invalidate() override { m_timer.stop(); }

private:
    std::shared_ptr<const RunLoop::Task> m_task;
    SystemLog& m_log;
    QTimer m_timer;
};

} // namespace

QtRunLoop::QtRunLoop(SystemLog& log)
    : m_log(log) {}

std::unique_ptr<RunLoopTimer> QtRunLoop::scheduleRepeating(std::chrono::nanoseconds interval,
                                                           std::chrono::nanoseconds, Task task) {
    return std::make_unique<QtRunLoopTimer>(interval, true, std::move(task), m_log);
}

std::unique_ptr<RunLoopTimer> QtRunLoop::scheduleOnce(std::chrono::nanoseconds delay, Task task) {
    return std::make_unique<QtRunLoopTimer>(delay, false, std::move(task), m_log);
}

void QtRunLoop::performSoon(Task task) {
    QMetaObject::invokeMethod(
        &m_target, [this, task = std::move(task)] { runGuarded(task, m_log); }, Qt::QueuedConnection);
}
