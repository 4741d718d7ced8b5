// SPDX-License-Identifier: MIT
#include "app/ExitGuard.h"

#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace {

// exit() hands its handlers nothing, so there is no other place for it.
std::function<void()>& rescueAtExit() {
    static std::function<void()> rescue;
    return rescue;
}

void runRescue() {
    const std::function<void()> rescue = std::exchange(rescueAtExit(), {});
    if (!rescue)
        return;
    rescue();
    // Nothing else of this process may run: the toolkit is in the middle of something.
    _exit(EXIT_SUCCESS);
}

} // namespace

ExitGuard::ExitGuard(std::function<void()> rescue) {
    // Before it is registered, so that it is destroyed after.
    rescueAtExit() = std::move(rescue);
    std::atexit(runRescue);
}

ExitGuard::~ExitGuard() {
    rescueAtExit() = {};
}
