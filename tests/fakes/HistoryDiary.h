// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryKeeper.h"

#include <string>

// The content of a history's file, as any program would read it.
namespace HistoryDiary {

// "Mail [Inbox] 40, Idle 20": the stretches in order, in seconds; joined if only the hour differs.
std::string of(const QString& path);
// The same from the sums, unordered: "Mail [Inbox] 40" by program and title over all days.
std::string sums(const QString& path);
// Everything that does not agree, one on a line: sums with stretches, months with days, overlaps of stretches
// with n = 0, texts and timers that nothing uses, and SQLite's own findings.
QStringList flaws(const QString& path);
// Whether the text is anywhere in the file or in the files beside it.
bool holdsText(const QString& path, const QString& text);

} // namespace HistoryDiary
