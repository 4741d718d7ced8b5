// SPDX-License-Identifier: MIT
#include "platform/x11/X11ClientProcess.h"

#include <QByteArrayList>
#include <QString>
#include <QSysInfo>

namespace {

// Names with and without the domain mean the same machine.
bool isThisMachine(const QByteArray& machine) {
    static const QByteArray kOwn = QSysInfo::machineHostName().toUtf8().split('.').first().toLower();
    return machine.isEmpty() || machine == "localhost" || machine.split('.').first().toLower() == kOwn;
}

} // namespace

std::int64_t X11ClientProcess::identifier() const {
    // A number from another machine means another process here, and the other end of the socket is only the
    // program that carries the connection.
    if (isThisMachine(machine)) {
        if (stated)
            return *stated;
        if (connected)
            return *connected;
    }
    return -std::int64_t(client);
}
