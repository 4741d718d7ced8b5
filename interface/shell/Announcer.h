// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

// Says to assistive programs what others see happen elsewhere than where the keys go, such as that the timer has begun
// to count. Nothing is shown. It speaks as a notification that appears, which those programs read out at once; the
// toolkit's own announcements are younger than the oldest toolkit that Ticklog runs with.
class Announcer {
public:
    explicit Announcer(QWidget& window)
        : m_window(window) {}

    // Only while the window is active.
    void say(const QString& text);

private:
    QWidget& m_window;
    QPointer<QWidget> m_notification;
};
