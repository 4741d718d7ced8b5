// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/NotificationCenter.h"
#include "platform/foundation/time/RunLoop.h"

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

// Moves notifications that arrive on other threads to the main thread and processes them there in the order
// in which they came. Make and destroy it on the main thread. This is how a notification gets to the main
// thread; none comes from another thread so far, so the program makes none of these.
class NotificationHandOff {
public:
    // `process` is called on the thread that makes this. The run loop must outlive it.
    NotificationHandOff(RunLoop& runLoop, std::function<void(const Notification&)> process);
    NotificationHandOff(const NotificationHandOff&) = delete;
    NotificationHandOff& operator=(const NotificationHandOff&) = delete;

    // May be called on any thread. On the main thread the notification is processed at once.
    void processNotification(const Notification& notification);

private:
    // Shared with messages that are still on their way when this is destroyed.
    struct Queue {
        std::mutex lock;
        std::deque<Notification> waiting;
        std::function<void(const Notification&)> process;
    };

    static void handleMessage(Queue& queue);

    RunLoop& m_runLoop;
    std::thread::id m_notificationThread;
    std::shared_ptr<Queue> m_queue;
};
