// SPDX-License-Identifier: MIT
// Started by the desktop at login: starts Ticklog, unless it runs, and ends.
#include "platform/foundation/programs/InstanceAddress.h"
#include "platform/foundation/programs/LoginStart.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace {

// Where it is installed, or was built, beside this; else whatever the session finds.
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
    // A second start would bring the window of the first to the front.
    if (InstanceAddress::ofThisSession().isServed())
        return EXIT_SUCCESS;
    LoginStart::announce();
    if (QProcess::startDetached(ticklog(), {}))
        return EXIT_SUCCESS;
    std::fputs("Ticklog could not be started.\n", stderr);
    return EXIT_FAILURE;
}
