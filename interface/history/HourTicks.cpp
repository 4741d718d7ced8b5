// SPDX-License-Identifier: MIT
#include "interface/history/HourTicks.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr qint64 kMinute = 60 * 1000;
constexpr qint64 kHour = 60 * kMinute;
constexpr std::array<qint64, 9> kSteps{kMinute,      2 * kMinute, 5 * kMinute, 10 * kMinute, 15 * kMinute,
                                       30 * kMinute, 1 * kHour,   2 * kHour,   3 * kHour};
// All offsets from UTC are multiples of it, and all longer steps too.
constexpr qint64 kQuarter = 15 * kMinute;

// How far the local clock is into its day.
qint64 timeOfDay(qint64 moment) {
    return QDateTime::fromMSecsSinceEpoch(moment).time().msecsSinceStartOfDay();
}

} // namespace

namespace HourTicks {

qint64 stepFor(double pixelsPerHour, double room) {
    const auto step = std::ranges::find_if(
        kSteps, [&](qint64 each) { return double(each) / double(kHour) * pixelsPerHour >= room; });
    return step != kSteps.end() ? *step : kSteps.back();
}

std::vector<qint64> ticks(double from, double to, qint64 step) {
    const qint64 grain = std::min(step, kQuarter);
    std::vector<qint64> ticks;
    for (auto moment = qint64(std::ceil(from / double(grain))) * grain; double(moment) <= to; moment += grain)
        if (timeOfDay(moment) % step == 0)
            ticks.push_back(moment);
    return ticks;
}

qint64 fullHour(qint64 moment) {
    return moment - timeOfDay(moment) % kHour;
}

QString label(qint64 moment, qint64 step) {
    const QLocale locale;
    const QString format = locale.timeFormat(QLocale::ShortFormat);
    const QTime time = QDateTime::fromMSecsSinceEpoch(moment).time();
    const bool hasHalves = format.contains(u'a', Qt::CaseInsensitive);
    if (hasHalves && step >= kHour)
        return locale.toString(time, QStringLiteral("h AP"));
    return locale.toString(time, hasHalves ? QStringLiteral("h:mm") : format);
}

} // namespace HourTicks
