// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// The launch helper tells Ticklog that the desktop has started it and nobody expects its window. It does so
// by the environment, because Ticklog has no options.
class LoginStart {
public:
    // For the programs that this process starts from now on.
    static void announce() { qputenv(kVariable, "1"); }

    // Whether this process was told so. True only at the first call, and not inherited by programs that it
    // starts.
    static bool take() {
        const bool isTold = qEnvironmentVariableIsSet(kVariable);
        qunsetenv(kVariable);
        return isTold;
    }

private:
    static constexpr const char* kVariable = "TICKLOG_STARTED_AT_LOGIN";
};
