// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// "00:00:00", with any number of hours. Fractions of a second are cut off.
QString durationText(double seconds);
// "1 hour, 12 minutes", "29 seconds", in the user's language. Without seconds, minutes are rounded.
QString durationInWords(double seconds, bool includesSeconds);
