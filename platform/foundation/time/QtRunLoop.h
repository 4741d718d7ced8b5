// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <QObject>

// The run loop of the thread that makes it, which must be the main thread and have a QCoreApplication.
class QtRunLoop : public RunLoop {
public:
    // Broken contracts in tasks are written to `log`, which must outlive the loop.
    explicit QtRunLoop(SystemLog& log);

    std::unique_ptr<RunLoopTimer> scheduleRepeating(std::chrono::nanoseconds interval,
                                                    std::chrono::nanoseconds tolerance, Task task) override;
    std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay, Task task) override;
    void performSoon(Task task) override;

private:
    SystemLog& m_log;
    // Receives tasks from other threads; tasks that are still queued when the loop ends are dropped.
    QObject m_target;
};
