// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryKeeper.h"

#include <string>

// What a history's file says, as any program would read it.
namespace HistoryDiary {

// "Mail [Inbox] 40, Idle 20": its stretches in order, in seconds; joined where nothing but the hour has changed.
std::string of(const QString& path);
// The same from the sums, without order: "Mail [Inbox] 40" by program and title over all days.
std::string sums(const QString& path);
// Lines of what does not agree: sums with stretches, months with days, overlaps of stretches of n = 0, texts and timers that
// nothing refers to, and what SQLite itself finds.
QStringList flaws(const QString& path);
// Whether the text is anywhere in the file or in what lies beside it.
bool holdsText(const QString& path, const QString& text);

} // namespace HistoryDiary
