// SPDX-License-Identifier: MIT
#pragma once

#include <QStandardPaths>

#include <gtest/gtest.h>

// Leaves it at that where a program is not there that some releases do not package: ./dev installs whatever the release
// has, and names at the end what was skipped. The only way for a test not to run.
#define SKIP_WHERE_NOT_PACKAGED(program)                                                                     \
    if (QStandardPaths::findExecutable(program).isEmpty())                                                   \
    GTEST_SKIP() << "SKIPPED: there is no " << qPrintable(program) << " here"
