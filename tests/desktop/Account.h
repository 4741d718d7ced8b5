// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"

// The account, for tests that compare it with a stopwatch.

inline Seconds timeOf(const TimeTracker& tracker, const QString& application) {
    for (const auto& app : tracker.fullTimeSet())
        if (app->name() == application)
            return app->activeTime();
    return 0;
}

inline Seconds sumOf(const TimeTracker& tracker) {
    Seconds sum = 0;
    for (const auto& app : tracker.fullTimeSet())
        sum += app->activeTime();
    return sum;
}
