// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <sys/types.h>
#include <unistd.h>

// What is done in the same way wherever the user's account and settings are kept.
namespace PrivateFiles {

// Makes the folder, and those missing above it, for the user alone (0700). An existing folder is not changed.
Outcome makeFolder(const QString& path);

// Renames a file that cannot be read, so that a new one can take its place. The new name tells when the file
// was last written: "<name>.damaged-20261120-230000". Answers the new path; NotFound when there is no such
// file. Never overwrites anything.
Result<QString> setAside(const QString& path);

// Whether a folder, or the link that leads to it, belongs to neither the user nor root: its owner could read
// all that is put there. False when there is none.
bool belongsToOthers(const QString& folder, uid_t user = ::geteuid());
// Whether anybody but the user and root may put files into a folder, or exchange it.
bool othersMayWrite(const QString& folder, uid_t user = ::geteuid());

} // namespace PrivateFiles
