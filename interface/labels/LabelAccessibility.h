// SPDX-License-Identifier: MIT
#pragma once

// From now on describes the colours of a label to assistive programs: one of several choices, which can be pressed.
void installLabelAccessibility();
