// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A title without what counts, spins or ticks in it, so that a window's title that changes by itself is one title: a
// counter in brackets at its beginning or behind "Inbox" ("(3) Chat"), "2 new items", "3/17" in brackets, a percentage, a
// time of day or of playing ("1:07 / 3:20"), and the signs of a spinner. Separators that are left over go as well. All other
// numbers stay: two documents that differ by one are two. Empty where nothing else is left.
QString steadyTitle(const QString& title);
