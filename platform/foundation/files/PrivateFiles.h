// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <sys/types.h>
#include <unistd.h>

// What is done alike wherever the user's account and settings are kept.
namespace PrivateFiles {

// Makes the folder with all that is missing above it, for the user alone (0700). A folder that is there
// already stays as it is.
Outcome makeFolder(const QString& path);

// Moves a file that cannot be read out of the way of its successor, under a name beside it that tells when it
// was last written: "<name>.damaged-20261120-230000". Answers the new path. NotFound when there is nothing to
// be moved; nothing is ever overwritten.
Result<QString> setAside(const QString& path);

// Whether a folder, or the link that leads to it, is neither the user's nor root's: whoever made it reads all that is put
// there. False when there is none.
bool belongsToOthers(const QString& folder, uid_t user = ::geteuid());
// Whether others than the user and root may put files into a folder, or exchange it.
bool othersMayWrite(const QString& folder, uid_t user = ::geteuid());

} // namespace PrivateFiles
