// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <sys/types.h>

// Whether a path is one that may be written into the record: full and without detours (no link, no "..", no empty part),
// of a file that can be run, and which nobody but root and `caller` could replace, in folders of which the same is true.
// Looks at each part once, from the root down, through descriptors: what a part is cannot change between being looked at
// and being gone through. The failure's text says what is wrong, for people.
Outcome checkProgram(const QString& path, uid_t caller);

// Whether a path is formed as above, and a dialogue shows it as it is, whatever is there.
Outcome checkForm(const QString& path);
