// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"
#include "platform/foundation/values/Result.h"

// The extension of the desktop's shell that reports which window is in front; nothing else there does. Main
// thread only.
class ShellExtension {
public:
    enum class State {
        // The shell has not answered yet, or does not run.
        Unknown,
        // Not in any folder where the shell looks.
        Missing,
        // Installed, but the shell will find it only at the next login.
        AwaitsLogin,
        // The shell runs none at the moment, as while the screen is locked, or is just switching it on.
        Paused,
        Off,
        // And so are all that the user has: the switch for all of them is off.
        AllOff,
        On,
        // The shell does not run it: it is made for other versions of the shell, or it failed.
        Refused,
    };

    virtual ~ShellExtension() = default;

    virtual State state() const = 0;
    // Calls `hearer` after each change of the state.
    virtual Subscription observe(News::Hearer hearer) = 0;
    // Installs a copy for this user, which knows this program's path, where the shell finds it. Replaces an
    // older copy.
    virtual Outcome install() = 0;
    // Tells the shell to run it, now and after each login. If all extensions are switched off, switches on
    // all that the user has enabled. The state says when it runs; if the shell must not run it, the state
    // stays.
    virtual void switchOn() = 0;
    // Tells the shell not to run it any more, and removes this user's copy.
    virtual Outcome remove() = 0;
};
