// SPDX-License-Identifier: MIT
#pragma once

// From now on describes the pictures of the history to assistive programs: a picture is a list, its items have
// their sentences and can be pressed.
void installPictureAccessibility();
