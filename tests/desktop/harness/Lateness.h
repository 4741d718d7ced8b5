// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

// How late a busy machine has let this program run since this was made, in seconds; close to 0 on an idle
// one. Measurements against the wall clock may be off by this much. Counts while the event loop turns.
class Lateness {
public:
    Lateness() {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_late += std::max(0.0, double(m_sinceLast.nsecsElapsed()) / 1e9 - kInterval);
            m_sinceLast.start();
        });
        m_sinceLast.start();
        m_timer.start(std::chrono::milliseconds(int(kInterval * 1000)));
    }

    double seconds() const { return m_late; }

private:
    // Seconds.
    static constexpr double kInterval = 0.02;

    QTimer m_timer;
    QElapsedTimer m_sinceLast;
    double m_late = 0;
};
