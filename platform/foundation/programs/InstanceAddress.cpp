// SPDX-License-Identifier: MIT
#include "platform/foundation/programs/InstanceAddress.h"

#include "platform/foundation/programs/ProcessExecutable.h"

#include <QFile>

#include <unistd.h>

InstanceAddress::InstanceAddress(const QString& folder, const QString& display) {
    QString name = QStringLiteral("org.ticklog.Ticklog-%1-%2").arg(::getuid()).arg(display);
    name.replace(u'/', u'_');
    if (folder.isEmpty()) {
        m_name = '\0' + name.toUtf8();
    } else {
        m_name = QFile::encodeName(folder + u'/' + name);
        m_lockPath = m_name + ".lock";
    }
}

InstanceAddress InstanceAddress::ofThisSession() {
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    // Each start has a sandbox of its own there; this is the only folder that a program's sandboxes share.
    if (!folder.isEmpty() && isInFlatpak())
        folder += QStringLiteral("/app/") + qEnvironmentVariable("FLATPAK_ID");
    return InstanceAddress(folder, nameOfDisplay());
}

QString InstanceAddress::nameOfDisplay() {
    const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    return wayland.isEmpty() ? qEnvironmentVariable("DISPLAY") : wayland;
}

bool InstanceAddress::isServed() const {
    // The kernel's list of sockets, with the names at the end of the lines. It has no sockets of processes
    // that have ended.
    QFile sockets(QStringLiteral("/proc/net/unix"));
    if (!sockets.open(QFile::ReadOnly))
        return false;
    QByteArray ending = ' ' + m_name;
    ending.replace('\0', '@');
    for (const QByteArray& line : sockets.readAll().split('\n'))
        if (line.endsWith(ending))
            return true;
    return false;
}
