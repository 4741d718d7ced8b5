// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Saves when something else ends the process: when the display goes, the toolkit ends it with status 1. While
// the guard lives, such an end, and exit(), run `rescue` and end with status 0. Without the guard there is
// nothing to save; if the toolkit then finds the display gone while quitting, that is no failure. There is at
// most one guard in a process.
class ExitGuard {
public:
    explicit ExitGuard(std::function<void()> rescue);
    ExitGuard(const ExitGuard&) = delete;
    ExitGuard& operator=(const ExitGuard&) = delete;
    ~ExitGuard();

    // Ends the process with this `status`, after the rescue if there is a guard.
    [[noreturn]] static void exit(int status);
};
