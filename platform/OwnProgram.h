// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

// This program, as it was started.
class OwnProgram {
public:
    virtual ~OwnProgram() = default;

    // Its full path.
    virtual QString executable() const = 0;
    // Starts it as a new instance, which begins when this process is gone, and ends this process at once with status 0:
    // nothing is saved on the way out. Returns only when the new instance cannot be started.
    virtual Outcome relaunch() = 0;
};
