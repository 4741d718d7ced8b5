// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <sys/types.h>

// Whether a path may be written into the record. It must be full and direct (no link, no "..", no empty
// part), lead to a file that can be run, and nobody but root and `caller` may be able to replace the file or
// any folder above it. Each part is checked once, from the root down, through descriptors: it cannot change
// between being checked and being used. The failure's text tells people what is wrong.
Outcome checkProgram(const QString& path, uid_t caller);

// Checks only the form of the path, and that a dialogue shows it as it is; does not look at the disk.
Outcome checkForm(const QString& path);
