// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"
#include "interface/pasteboard/SpreadsheetTable.h"

class ProjectList;
class TimerTree;

// Timers as a table of which a spreadsheet can add up the times: a row for each window, and one for what a program
// has beyond its windows. Each row names its projects and the identity by which other programs know it.
// Under a search, a program that is there only for its windows counts as far as these match.
SpreadsheetTable timerTable(const TimeStoreItem::Children& timers, const TimerTree& tree,
                            const ProjectList& projects, const QString& search);
