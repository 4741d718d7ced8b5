// SPDX-License-Identifier: MIT
#pragma once

class SqliteDatabase;

// The tables of the history, which docs/file-formats.md describes, and how an older file is brought up to
// date.
namespace HistorySchema {

// "tklh": tells other programs whose file this is.
inline constexpr int kApplicationId = 0x746b6c68;
// The number of the form that this program writes. A file with a higher one is left alone.
inline constexpr int kNumber = 2;

enum class Form { Ours, Newer, Foreign };
// "Foreign" includes a file whose header is damaged. A new file is ours.
Form formOf(SqliteDatabase& database);

// Makes the tables in a new file, or raises an older one to this number, one number in each transaction.
void bringUp(SqliteDatabase& database);

// Whether it has what people said about the past: older files, read before they are brought up, do not.
bool hasAmendments(SqliteDatabase& database);

} // namespace HistorySchema
