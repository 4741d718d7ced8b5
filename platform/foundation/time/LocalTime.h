// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QDateTime>

// A date in local time.
inline QDateTime localTime(Date date) {
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count());
}

// The moment when the local clock shows `time` on `day`. If it does so twice, the first; if never, because
// the clock is set forward, later by as much as it is set.
Date localInstant(QDate day, QTime time);

inline Date dateOf(const QDateTime& time) {
    return Date(
        std::chrono::duration_cast<Date::duration>(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
}
