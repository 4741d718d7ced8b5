// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A title without what counts, spins or ticks in it, so that a title that changes by itself stays one title.
// Removed are: a counter in brackets at the beginning or behind "Inbox" ("(3) Chat"), "2 new items", "3/17"
// in brackets, a percentage, a time of day or of playing ("1:07 / 3:20"), the signs of a spinner, and
// separators that are left over. All other numbers stay: they may tell two documents apart. Empty when
// nothing else is left.
QString steadyTitle(const QString& title);
