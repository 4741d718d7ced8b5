// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QDateTime>

// A date as the clock on the wall shows it.
inline QDateTime localTime(Date date) {
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::floor<std::chrono::milliseconds>(date).time_since_epoch().count());
}

// When the clock on the wall shows `time` on `day`: the first time where it does so twice, and where it never does, because
// it is set forth, as much later as it is set.
Date localInstant(QDate day, QTime time);

inline Date dateOf(const QDateTime& time) {
    return Date(
        std::chrono::duration_cast<Date::duration>(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
}
