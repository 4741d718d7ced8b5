// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Amendment.h"

#include <set>
#include <vector>

class RecordedNames;
class SqliteDatabase;
class UnwrittenRows;

// After the clock was set back the same time comes again, and when a stretch was does not tell it from others. Answers
// whose time is meant in these pieces by what people see of it, as it is recorded; empty where no two stretches lie
// over each other, and for no pieces. Throws SqliteError.
std::vector<Amendment::Whose> overlaid(SqliteDatabase& history, const UnwrittenRows& unwritten,
                                       const RecordedNames& names,
                                       const std::vector<Amendment::Piece>& pieces,
                                       const std::set<Amendment::Whose>& shown);
