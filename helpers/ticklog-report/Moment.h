// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <optional>

// What people call a moment on a command line: "2026-11-20", "2026-11-20T14:30", "today", "yesterday", a day of the week (the
// last one, today among them), "now", "-90m", "-5h", "-7d", "-3w". A day is its beginning, `dayBegins` hours after midnight.
// In the zone of `now`. Absent for anything else.
std::optional<QDateTime> momentOf(const QString& text, const QDateTime& now, int dayBegins);

// The day that a moment belongs to, where days begin at that hour.
QDate dayOf(const QDateTime& moment, int dayBegins);
