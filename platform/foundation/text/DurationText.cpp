// SPDX-License-Identifier: MIT
#include "platform/foundation/text/DurationText.h"

#include "platform/foundation/text/LocalizedStrings.h"

#include <QStringList>

#include <cmath>
#include <limits>

namespace {

// Rounds towards zero. A file may hold any number, even one too large for an integer.
qint64 wholeNumber(double number) {
    // 2^63 is the first double that does not fit into a 64-bit integer.
    constexpr double kLimit = 9223372036854775808.0;
    if (!std::isfinite(number))
        return 0;
    return number >= kLimit   ? std::numeric_limits<qint64>::max()
           : number < -kLimit ? std::numeric_limits<qint64>::min()
                              : qint64(number);
}

QString counted(const char* key, qint64 count) {
    return localized(key).replace(QLatin1String("%ld"), QString::number(count));
}

// Languages form the plural of two and of none in different ways, so both have texts of their own.
const char* hourKey(qint64 hours) {
    return hours == 1   ? QT_TRANSLATE_NOOP("Ticklog", "%ld hour")
           : hours == 2 ? QT_TRANSLATE_NOOP("Ticklog", "%ld hour-2")
                        : QT_TRANSLATE_NOOP("Ticklog", "%ld hours");
}

const char* minuteKey(qint64 minutes) {
    return minutes == 1   ? QT_TRANSLATE_NOOP("Ticklog", "%ld minute")
           : minutes == 2 ? QT_TRANSLATE_NOOP("Ticklog", "%ld minute-2")
                          : QT_TRANSLATE_NOOP("Ticklog", "%ld minutes");
}

const char* secondKey(qint64 seconds) {
    return seconds == 0   ? QT_TRANSLATE_NOOP("Ticklog", "%ld second-0")
           : seconds == 1 ? QT_TRANSLATE_NOOP("Ticklog", "%ld second")
           : seconds == 2 ? QT_TRANSLATE_NOOP("Ticklog", "%ld second-2")
                          : QT_TRANSLATE_NOOP("Ticklog", "%ld seconds");
}

} // namespace

QString durationText(double seconds) {
    const double whole = std::floor(seconds);
    const double hours = std::floor(whole / 3600);
    const double minutes = std::fmod(std::floor(whole / 60), 60);
    return QString::asprintf("%02.f:%02.f:%02.f", hours, minutes, std::fmod(whole, 60));
}

QString durationInWords(double seconds, bool includesSeconds) {
    const double whole = std::floor(seconds);
    const auto hours = wholeNumber(std::floor(whole / 3600));
    // Rounded before the hours are taken off: 59.5 minutes become 60, which is an hour and no minutes.
    const float allMinutes = includesSeconds ? float(std::floor(whole / 60)) : std::round(float(whole / 60));
    const auto minutes = wholeNumber(std::fmod(allMinutes, 60.0F));
    const auto rest = wholeNumber(std::fmod(whole, 60));
    QStringList parts;
    if (hours != 0)
        parts << counted(hourKey(hours), hours);
    if (minutes != 0)
        parts << counted(minuteKey(minutes), minutes);
    if (includesSeconds || parts.isEmpty())
        parts << counted(secondKey(rest), rest);
    return parts.join(QStringLiteral(", "));
}
