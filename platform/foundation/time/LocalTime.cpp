// SPDX-License-Identifier: MIT
#include "platform/foundation/time/LocalTime.h"

#include <QTimeZone>

using namespace std::chrono_literals;

// Not left to QDateTime, whose answers for such times differ between versions.
Date localInstant(QDate day, QTime time) {
    const QDateTime shown(day, time, QTimeZone::utc());
    const Date asIfUtc = dateOf(shown);
    const auto byOffsetAt = [&](Date date) {
        return asIfUtc - std::chrono::seconds(localTime(date).offsetFromUtc());
    };
    const Date byEarlier = byOffsetAt(asIfUtc - 24h);
    const Date byLater = byOffsetAt(asIfUtc + 24h);
    const auto isShownAt = [&](Date date) {
        return localTime(date).date() == day && localTime(date).time() == time;
    };
    return isShownAt(byEarlier) || !isShownAt(byLater) ? byEarlier : byLater;
}
