// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <optional>

// The names of moments on a command line: "2026-11-20", "2026-11-20T14:30", "today", "yesterday", a day of
// the week (the last one, which may be today), "now", "-90m", "-5h", "-7d", "-3w". A day means its beginning,
// `dayBegins` hours after midnight. A time that the clock shows twice is the first; one that it skips is the
// moment at which it does. Absent for any other text.
std::optional<QDateTime> momentOf(const QString& text, const QDateTime& now, int dayBegins);

// When the clock on the wall shows this: the first time where it does so twice, and where it is set over it, the moment at
// which it is set.
QDateTime shownAs(QDate day, QTime time);
// When this day begins, if days begin at this hour, even if the clock skips or repeats it.
QDateTime beginningOf(QDate day, int dayBegins);
// The day that a moment belongs to, if days begin at this hour.
QDate dayOf(const QDateTime& moment, int dayBegins);
