// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

// Whether this release has the program in the form that the tests need: the newest Mutter has no X11 any
// more.
inline bool isPackaged(const QString& program) {
    if (QStandardPaths::findExecutable(program).isEmpty())
        return false;
    if (program != QLatin1String("mutter"))
        return true;
    QProcess help;
    help.start(program, {QStringLiteral("--help")});
    return help.waitForFinished() && help.readAll().contains("--x11");
}

// Skips a test if a program is missing that some releases do not package. ./dev installs whatever the release
// has, and lists at the end what was skipped. The only way to skip a test.
#define SKIP_WHERE_NOT_PACKAGED(program)                                                                     \
    if (!isPackaged(program))                                                                                \
    GTEST_SKIP() << "SKIPPED: there is no " << qPrintable(program) << " for it here"
