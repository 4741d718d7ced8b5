// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

// The arguments Ticklog was started with.
struct CommandLine {
    // Ends the process after printing the answer, for --help, --version and unknown options.
    static CommandLine parse(int argc, char** argv);

    // The full path of a database file to import; absent when none was given.
    std::optional<QString> file;
};
