// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

// A system bus of its own, as strict as the machine's, with our policy. A scripted polkit can be on it, and
// it starts our helper when that is called.
class SystemBus {
public:
    // The helper keeps its record below `home` and ends after `idleMs`. Aborts the test program when no bus
    // can be started.
    SystemBus(const TemporaryHome& home, int idleMs);

    // What to put into DBUS_SYSTEM_BUS_ADDRESS.
    QString address() const { return m_address; }

    // Where the bus looks for services.
    QString serviceFolder() const { return m_serviceFolder; }

    QString recordFolder() const { return m_recordFolder; }

private:
    static QByteArray configuration(const QString& folder, const QString& serviceFolder);

    QString m_serviceFolder;
    QString m_recordFolder;
    std::unique_ptr<Program> m_daemon;
    QString m_address;
};
