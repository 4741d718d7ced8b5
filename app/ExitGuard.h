// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Saves when something ends the process over our heads: the toolkit ends it by itself, with status 1, when the display
// goes. There can be one in a process. While it lives, such an end and exit() run the rescue and end with status 0. After
// it there is nothing to rescue, and when the toolkit, on its own way out, finds the display gone, that is no failure.
class ExitGuard {
public:
    explicit ExitGuard(std::function<void()> rescue);
    ExitGuard(const ExitGuard&) = delete;
    ExitGuard& operator=(const ExitGuard&) = delete;
    ~ExitGuard();

    // Ends the process with `status` as meant, after the rescue if there is a guard.
    [[noreturn]] static void exit(int status);
};
