// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <QObject>

// The run loop of the thread that makes it, which must be the main thread and have a QCoreApplication.
class QtRunLoop : public RunLoop {
public:
    // Broken contracts in tasks are written to `log`, which must outlive the loop.
    explicit QtRunLoop(SystemLog& log);
    ~QtRunLoop() override;

    std::unique_ptr<RunLoopTimer> scheduleRepeating(std::chrono::nanoseconds interval,
                                                    std::chrono::nanoseconds tolerance, Task task) override;
    using RunLoop::scheduleOnce;
    std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay,
                                               std::chrono::nanoseconds tolerance, Task task) override;
    void performSoon(Task task) override;
    Subscription observeWaits(WaitHearer hearer) override;

private:
    class FirstEvent;

    SystemLog& m_log;
    // Receives tasks from other threads; tasks that are still queued when the loop ends are dropped.
    QObject m_target;
    NewsOf<WaitHearer> m_waits;
    // Made when somebody first observes the waits.
    std::unique_ptr<FirstEvent> m_firstEvent;
};
