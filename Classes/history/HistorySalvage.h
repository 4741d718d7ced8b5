// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFile.h"

// What can still be read of a damaged history.
namespace HistorySalvage {

// Takes over into `into`, in one transaction, whatever of the file at `path` can be read, from both sides of each damaged
// place. Answers how many stretches. Nothing that is wrong with the damaged file is thrown.
int takeOver(const QString& path, HistoryFile& into);

} // namespace HistorySalvage
