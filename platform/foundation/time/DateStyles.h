// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QString>

// Dates in local time, in the form of the user's locale.

// "11/20/26"
QString shortDate(Date date);
// "Nov 20, 2026 7:05 PM"
QString mediumDateShortTime(Date date);
