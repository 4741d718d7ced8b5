// SPDX-License-Identifier: MIT
// The desktop starts this at login. It starts Ticklog, unless that runs, and ends.
#include "platform/foundation/programs/InstanceAddress.h"
#include "platform/foundation/programs/LoginStart.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace {

// The program beside this one, where it is installed or built; else the one that the session finds.
QString ticklog() {
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString& place : {QStringLiteral("/../../bin/ticklog"), QStringLiteral("/ticklog")})
        if (const QFileInfo program(folder + place); program.isFile() && program.isExecutable())
            return program.absoluteFilePath();
    return QStringLiteral("ticklog");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (InstanceAddress::nameOfDisplay().isEmpty()) {
        std::fputs("There is no display to start Ticklog on.\n", stderr);
        return EXIT_FAILURE;
    }
    // Starting it again would bring its window to the front.
    if (InstanceAddress::ofThisSession().isServed())
        return EXIT_SUCCESS;
    LoginStart::announce();
    if (QProcess::startDetached(ticklog(), {}))
        return EXIT_SUCCESS;
    std::fputs("Ticklog could not be started.\n", stderr);
    return EXIT_FAILURE;
}
