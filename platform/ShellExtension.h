// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <functional>

// The extension of the desktop's shell without which nobody tells which window is in front. Main thread only.
class ShellExtension {
public:
    enum class State {
        // The shell has not said yet, or is not there.
        Unknown,
        // Nowhere where the shell would find it.
        Missing,
        // It is there, and the shell finds it at the next login.
        AwaitsLogin,
        // The shell runs none at the moment, as while the screen is locked, or is just switching it on.
        Paused,
        Off,
        // And so are all that the user has: the switch for all of them is off.
        AllOff,
        On,
        // The shell does not run it: it was made for other versions of the shell, or failed.
        Refused,
    };

    virtual ~ShellExtension() = default;

    virtual State state() const = 0;
    // Calls `changed` after the state has changed. Replaces the last one; empty ends it.
    virtual void observe(std::function<void()> changed) = 0;
    // Puts a copy for this user, which knows this program, where the shell finds it. One that is there is replaced.
    virtual Outcome install() = 0;
    // Has the shell run it, from now on and after each login, and for that all others that are on, where all are off. The
    // state tells when that is so; where the shell must not, it stays what it is.
    virtual void switchOn() = 0;
    // Has the shell run it no more, and takes this user's copy away.
    virtual Outcome remove() = 0;
};
