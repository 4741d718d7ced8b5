// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"

#include "platform/foundation/values/Assertions.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

// Runs a task. If it breaks a contract, only this task is lost.
void runGuarded(const RunLoop::Task& task, SystemLog& log) {
    try {
        task();
    } catch (const InternalInconsistency& failure) {
        log.log(failure.logLine());
    }
}

// Coarse timers share wake-ups: to a twentieth of the interval, or to full seconds.
Qt::TimerType typeFor(std::chrono::nanoseconds interval, std::chrono::nanoseconds tolerance) {
    if (tolerance >= 1s && interval >= 10s)
        return Qt::VeryCoarseTimer;
    return tolerance > 0s && tolerance >= interval / 20 ? Qt::CoarseTimer : Qt::PreciseTimer;
}

class QtRunLoopTimer : public RunLoopTimer {
public:
    QtRunLoopTimer(std::chrono::nanoseconds interval, std::chrono::nanoseconds tolerance, bool repeats,
                   RunLoop::Task task, SystemLog& log)
        : m_task(std::make_shared<const RunLoop::Task>(std::move(task)))
        , m_log(log) {
        m_timer.setTimerType(typeFor(interval, tolerance));
        m_timer.setSingleShot(!repeats);
        m_timer.setInterval(std::chrono::ceil<std::chrono::milliseconds>(interval));
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

// Hears of the first event after each wait. Whatever ends a wait reaches an object of this thread as an event: timers,
// sockets, tasks, the windows' input. The dispatcher's own signal comes too late where GLib waits.
class QtRunLoop::FirstEvent : public QObject {
public:
    explicit FirstEvent(const NewsOf<WaitHearer>& waits)
        : m_waits(waits) {
        QCoreApplication::instance()->installEventFilter(this);
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            m_isAwake = true;
            m_waits.tell(&WaitHearer::aboutToWait);
            m_isAwake = false;
        });
    }

    bool eventFilter(QObject* receiver, QEvent*) override {
        if (std::exchange(m_isAwake, true))
            return false;
        const QPointer<QObject> held(receiver);
        m_waits.tell(&WaitHearer::woken);
        // Who is told may have no more use for what the event is about, such as a timer.
        return !held;
    }

private:
    const NewsOf<WaitHearer>& m_waits;
    bool m_isAwake = true;
};

QtRunLoop::QtRunLoop(SystemLog& log)
    : m_log(log) {}

QtRunLoop::~QtRunLoop() = default;

std::unique_ptr<RunLoopTimer> QtRunLoop::scheduleRepeating(std::chrono::nanoseconds interval,
                                                           std::chrono::nanoseconds tolerance, Task task) {
    return std::make_unique<QtRunLoopTimer>(interval, tolerance, true, std::move(task), m_log);
}

std::unique_ptr<RunLoopTimer> QtRunLoop::scheduleOnce(std::chrono::nanoseconds delay,
                                                      std::chrono::nanoseconds tolerance, Task task) {
    return std::make_unique<QtRunLoopTimer>(delay, tolerance, false, std::move(task), m_log);
}

void QtRunLoop::performSoon(Task task) {
    QMetaObject::invokeMethod(
        &m_target, [this, task = std::move(task)] { runGuarded(task, m_log); }, Qt::QueuedConnection);
}

Subscription QtRunLoop::observeWaits(WaitHearer hearer) {
    if (!m_firstEvent)
        m_firstEvent = std::make_unique<FirstEvent>(m_waits);
    return m_waits.observe({[this, woken = std::move(hearer.woken)] {
                                if (woken)
                                    runGuarded(woken, m_log);
                            },
                            std::move(hearer.aboutToWait)});
}
