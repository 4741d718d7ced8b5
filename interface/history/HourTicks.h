// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

// The axis of a day: elapsed time is drawn, and local time is written, so that a day on which the clock is set has
// 23 or 25 hours. Moments are milliseconds since 1970.
namespace HourTicks {

// The shortest round step, of those from 1 minute to 3 hours, of which each has `room` pixels.
qint64 stepFor(double pixelsPerHour, double room);
// The moments from `from` to `to` at which the local clock shows a whole multiple of the step.
std::vector<qint64> ticks(double from, double to, qint64 step);
// The last full hour of the local clock, at the moment or before it.
qint64 fullHour(qint64 moment);
// "9 AM", "09:00", "09:15", as short as the locale allows for this step.
QString label(qint64 moment, qint64 step);

} // namespace HourTicks
