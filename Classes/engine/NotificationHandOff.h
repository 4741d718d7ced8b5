// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/NotificationCenter.h"
#include "platform/foundation/time/RunLoop.h"

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

// Moves notifications that arrive on other threads onto the main thread, where they are processed in the order in
// which they came. Make and destroy it on the main thread. None of ours does today, and the program makes none: this is the
// way for whoever hands news over from another thread to observers that know but one.
class NotificationHandOff {
public:
    // `process` is called on the thread that makes this. The run loop must outlive it.
    NotificationHandOff(RunLoop& runLoop, std::function<void(const Notification&)> process);
    NotificationHandOff(const NotificationHandOff&) = delete;
    NotificationHandOff& operator=(const NotificationHandOff&) = delete;

    // From any thread. On the main thread it is processed at once.
    void processNotification(const Notification& notification);

private:
    // Shared with the messages that are under way when this is destroyed.
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
