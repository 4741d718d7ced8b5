// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

// Whether this release has the program, and with what the tests want of it: the newest Mutter knows Wayland alone.
inline bool isPackaged(const QString& program) {
    if (QStandardPaths::findExecutable(program).isEmpty())
        return false;
    if (program != QLatin1String("mutter"))
        return true;
    QProcess help;
    help.start(program, {QStringLiteral("--help")});
    return help.waitForFinished() && help.readAll().contains("--x11");
}

// Leaves it at that where a program is not there that some releases do not package: ./dev installs whatever the release
// has, and names at the end what was skipped. The only way for a test not to run.
#define SKIP_WHERE_NOT_PACKAGED(program)                                                                     \
    if (!isPackaged(program))                                                                                \
    GTEST_SKIP() << "SKIPPED: there is no " << qPrintable(program) << " for it here"
