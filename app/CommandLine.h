// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

// What Ticklog was started with.
struct CommandLine {
    // Prints the answer to --help, --version or something unknown, and then ends the process.
    static CommandLine parse(int argc, char** argv);

    // The full path of a database file to import; absent when none was given.
    std::optional<QString> file;
};
