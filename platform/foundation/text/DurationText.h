// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// "00:00:00", with any number of hours. Fractions of a second are cut off.
QString durationText(double seconds);
