// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/SessionBus.h"

SessionBus::SessionBus(const QProcessEnvironment& environment, const QString& folder)
    : m_daemon(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                QStringLiteral("--address=unix:dir=") + folder},
               environment, Program::Output::Read) {
    const auto address = m_daemon.readLine();
    if (!address)
        qFatal("no message bus could be started: is dbus-daemon installed?");
    m_address = QString::fromLatin1(*address);
}
