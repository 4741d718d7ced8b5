// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// How the launch helper tells Ticklog that the desktop started it, and nobody waits for its window: by the environment,
// because Ticklog takes no options.
class LoginStart {
public:
    // For the programs that this process starts from now on.
    static void announce() { qputenv(kVariable, "1"); }

    // Whether this process was told. Only the first time: what it starts itself is not.
    static bool take() {
        const bool isTold = qEnvironmentVariableIsSet(kVariable);
        qunsetenv(kVariable);
        return isTold;
    }

private:
    static constexpr const char* kVariable = "TICKLOG_STARTED_AT_LOGIN";
};
