// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A title without what counts, spins or ticks in it, so that a title that changes by itself stays one title.
// Left out are a counter in brackets at the very beginning or behind "Inbox" ("(3) Chat"), "2 new items",
// "3/17" in brackets at an end, a percentage beside a word of progress or parted from the rest at an end,
// "1:07 / 3:20", a clock that is parted from the rest, the signs of a spinner, and separators that are left
// over. All other numbers stay, because they may tell two documents apart. What would leave nothing leaves
// the whole title.
QString steadyTitle(const QString& title);
