// SPDX-License-Identifier: MIT
#include "Classes/engine/NotificationHandOff.h"

NotificationHandOff::NotificationHandOff(RunLoop& runLoop, std::function<void(const Notification&)> process)
    : m_runLoop(runLoop)
    , m_notificationThread(std::this_thread::get_id())
    , m_queue(std::make_shared<Queue>()) {
    m_queue->process = std::move(process);
}

void NotificationHandOff::processNotification(const Notification& notification) {
    if (std::this_thread::get_id() == m_notificationThread) {
        m_queue->process(notification);
        return;
    }
    {
        const std::lock_guard guard(m_queue->lock);
        m_queue->waiting.push_back(notification);
    }
    m_runLoop.performSoon([weak = std::weak_ptr(m_queue)] {
        if (const auto queue = weak.lock())
            handleMessage(*queue);
    });
}

void NotificationHandOff::handleMessage(Queue& queue) {
    std::unique_lock guard(queue.lock);
    while (!queue.waiting.empty()) {
        const Notification next = std::move(queue.waiting.front());
        queue.waiting.pop_front();
        // Without the lock: processing may bring another notification.
        guard.unlock();
        queue.process(next);
        guard.lock();
    }
}
