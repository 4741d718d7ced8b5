// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/WaitFor.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    QElapsedTimer elapsed;
    elapsed.start();
    // Conditions may depend on things that raise no event in this process.
    QTimer waker;
    waker.start(std::chrono::milliseconds(3));
    while (!condition()) {
        if (elapsed.hasExpired(limit.count()))
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

double passTime(std::chrono::milliseconds duration) {
    QElapsedTimer elapsed;
    elapsed.start();
    waitFor([] { return false; }, duration);
    return double(elapsed.nsecsElapsed()) / 1e9;
}
