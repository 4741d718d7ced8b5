// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"
#include "platform/foundation/values/Result.h"

#include <QByteArrayView>

#include <functional>

// Files that are handed to others, as they are to lie there afterwards.
namespace WholeFile {

// Told from 0 to 1 while a file is written, after every piece of it.
using Progress = std::function<void(double)>;

// Writes all of `bytes` at `path` and syncs it, a new file for the user alone. Not by way of another file: an existing one
// keeps its links and its permissions, and what is known not to fit on the disk replaces nothing. Of a new file nothing
// stays behind unless it is whole. Only files are written to, no pipes or devices. Any thread.
Outcome write(QByteArrayView bytes, const QString& path, const Progress& progress = {},
              FileCalls& calls = FileCalls::system());

// The same, never in the place of another file: under the first of its names (see nthName()) at which nothing stands, which
// it answers.
Result<QString> writeBeside(QByteArrayView bytes, const QString& path,
                            FileCalls& calls = FileCalls::system());

// The names under which a file at `path` can stand beside others: from 1, "day.csv", "day 2.csv", "day 3.csv".
QString nthName(const QString& path, int n);
// The first of them at which nothing stands, not even a link that leads nowhere.
QString freeName(const QString& path);

// Whether two paths lead to one file, by links or mounts too; false while one of them leads to none. Waits for both.
bool isSame(const QString& a, const QString& b);

} // namespace WholeFile
