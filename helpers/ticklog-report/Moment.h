// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <optional>

// The names of moments on a command line: "2026-11-20", "2026-11-20T14:30", "today", "yesterday", a day of
// the week (the last one, which may be today), "now", "-90m", "-5h", "-7d", "-3w". A day means its beginning,
// `dayBegins` hours after midnight. In the time zone of `now`. Absent for any other text.
std::optional<QDateTime> momentOf(const QString& text, const QDateTime& now, int dayBegins);

// The day that a moment belongs to, if days begin at this hour.
QDate dayOf(const QDateTime& moment, int dayBegins);
