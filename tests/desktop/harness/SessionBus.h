// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Program.h"

// A message bus of its own.
class SessionBus {
public:
    // `folder` takes the socket. Aborts the test program when no bus can be started.
    SessionBus(const QProcessEnvironment& environment, const QString& folder);

    // What to put into DBUS_SESSION_BUS_ADDRESS.
    QString address() const { return m_address; }

    // Ends the bus; all its clients lose their connection.
    void kill() { m_daemon.kill(); }

private:
    Program m_daemon;
    QString m_address;
};
