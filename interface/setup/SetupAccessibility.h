// SPDX-License-Identifier: MIT
#pragma once

// Describes the setup window to assistive programs from now on: the pages as a group that is called what there is to read
// on the one shown, a step's row as a button that is selected while its page is shown.
void installSetupAccessibility();
