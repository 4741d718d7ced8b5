// SPDX-License-Identifier: MIT
#pragma once

class SqliteDatabase;

// The tables of the history, which docs/file-formats.md describes, and how a file of an earlier form becomes one of today's.
namespace HistorySchema {

// "tklh": by this other programs know whose file it is.
inline constexpr int kApplicationId = 0x746b6c68;
// Of the form that this program writes. A higher one is left alone.
inline constexpr int kNumber = 1;

enum class Form { Ours, Newer, Foreign };
// Foreign is also what is damaged where that is said. A new file is ours.
Form formOf(SqliteDatabase& database);

// Makes the tables in a new file, and brings those of an earlier number up to this one, each number in a transaction.
void bringUp(SqliteDatabase& database);

} // namespace HistorySchema
