// SPDX-License-Identifier: MIT
#pragma once

// From now on describes the setup window to assistive programs: the pages are a group, named by the text of
// the page that is shown; the row of a step is a button that is selected while its page is shown.
void installSetupAccessibility();
