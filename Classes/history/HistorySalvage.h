// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFile.h"

// Rescues what can still be read of a damaged history.
namespace HistorySalvage {

// Copies into `into`, in one transaction, whatever can be read of the file at `path`, reading around each
// damaged place from both sides. Answers how many stretches. Errors of the damaged file are not thrown.
int takeOver(const QString& path, HistoryFile& into);

} // namespace HistorySalvage
