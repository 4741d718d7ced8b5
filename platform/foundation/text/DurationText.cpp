// SPDX-License-Identifier: MIT
#include "platform/foundation/text/DurationText.h"

#include <cmath>

QString durationText(double seconds) {
    const double whole = std::floor(seconds);
    const double hours = std::floor(whole / 3600);
    const double minutes = std::fmod(std::floor(whole / 60), 60);
    return QString::asprintf("%02.f:%02.f:%02.f", hours, minutes, std::fmod(whole, 60));
}
