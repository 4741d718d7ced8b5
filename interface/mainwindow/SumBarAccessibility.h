// SPDX-License-Identifier: MIT
#pragma once

// From now on describes the bar below the timers to assistive programs: the sum with its kind, and the cut-off as a
// time.
void installSumBarAccessibility();
