// SPDX-License-Identifier: MIT
#include "app/ExitGuard.h"

#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace {

struct Ending {
    std::function<void()> rescue;
    int status = EXIT_SUCCESS;
};

// exit() hands its handlers nothing, so there is no other place for it.
Ending& ending() {
    static Ending ending;
    return ending;
}

void runRescue() {
    const std::function<void()> rescue = std::exchange(ending().rescue, {});
    if (!rescue)
        return;
    rescue();
    // Nothing else of this process may run: the toolkit is in the middle of something.
    _exit(ending().status);
}

} // namespace

ExitGuard::ExitGuard(std::function<void()> rescue) {
    // Before the handler is registered, so that it is destroyed after.
    ending().rescue = std::move(rescue);
    std::atexit(runRescue);
}

ExitGuard::~ExitGuard() {
    ending().rescue = {};
}

void ExitGuard::exit(int status) {
    ending().status = status;
    std::exit(status);
}
