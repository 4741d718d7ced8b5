// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"
#include "platform/foundation/values/Result.h"

#include <QByteArrayView>

#include <functional>

// Writes whole files for other programs, straight to where they are to lie.
namespace WholeFile {

// Called while a file is written, after every piece, with the part that is done, from 0 to 1.
using Progress = std::function<void(double)>;

// Writes all of `bytes` to `path` and syncs it; a new file is for the user alone. It writes into an existing
// file, which so keeps its links and permissions; content that is known not to fit on the disk replaces
// nothing. A new file that could not be written whole is removed. Writes to plain files only, not to pipes or
// devices. Any thread.
Outcome write(QByteArrayView bytes, const QString& path, const Progress& progress = {},
              FileCalls& calls = FileCalls::system());

// The same, but never replaces a file: uses the first free name (see nthName()) and answers it.
Result<QString> writeBeside(QByteArrayView bytes, const QString& path,
                            FileCalls& calls = FileCalls::system());

// Names for a file that stands beside others, from n = 1: "day.csv", "day 2.csv", "day 3.csv".
QString nthName(const QString& path, int n);
// The first of these names that is free. A link counts as taken even if it leads nowhere.
QString freeName(const QString& path);

// Whether two paths lead to the same file, also by links or mounts; false if one of them leads to no file.
// Waits for both disks.
bool isSame(const QString& a, const QString& b);

} // namespace WholeFile
