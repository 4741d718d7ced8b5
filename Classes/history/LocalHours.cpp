// SPDX-License-Identifier: MIT
#include "Classes/history/LocalHours.h"

#include <QDateTime>

namespace LocalHours {

std::int64_t offsetAt(std::int64_t time) {
    return QDateTime::fromMSecsSinceEpoch(time).offsetFromUtc() / 60;
}

std::int64_t after(std::int64_t time, std::int64_t offset) {
    const std::int64_t local = time + offset * 60'000;
    const std::int64_t hour = local / kHour - (local % kHour < 0);
    return (hour + 1) * kHour - offset * 60'000;
}

} // namespace LocalHours
