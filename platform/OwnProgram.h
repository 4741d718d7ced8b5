// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

// This program, as it was started.
class OwnProgram {
public:
    virtual ~OwnProgram() = default;

    // Its full path.
    virtual QString executable() const = 0;
    // Starts a new instance, which begins when this process has ended, and ends this process at once with
    // status 0, without saving anything. Returns only if the new instance cannot be started.
    virtual Outcome relaunch() = 0;
};
