// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// "00:00:00", hours unbounded. Parts of a second are cut off.
QString durationText(double seconds);
