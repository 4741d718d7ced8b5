// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

#include <QObject>

// The run loop of the thread that makes it, which must be the main thread with a QCoreApplication.
class QtRunLoop : public RunLoop {
public:
    // `log` takes the assertion failures of tasks; it must outlive the loop.
    explicit QtRunLoop(SystemLog& log);

    std::unique_ptr<RunLoopTimer> scheduleRepeating(std::chrono::nanoseconds interval,
                                                    std::chrono::nanoseconds tolerance, Task task) override;
    std::unique_ptr<RunLoopTimer> scheduleOnce(std::chrono::nanoseconds delay, Task task) override;
    void performSoon(Task task) override;

private:
    SystemLog& m_log;
    // Where tasks from other threads are queued to; what is still queued when the loop goes is dropped.
    QObject m_target;
};
