// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>

// What is known of a window's process.
struct X11ClientProcess {
    // _NET_WM_PID: the program's own statement.
    std::optional<quint32> stated;
    // What the X server knows of the other end of the program's socket.
    std::optional<quint32> connected;
    // WM_CLIENT_MACHINE; empty when not set.
    QByteArray machine;
    // The part of the window's number that identifies the X client.
    quint32 client = 0;

    // The process; for a client without a process on this machine, a negative number that is the same for all
    // its windows.
    std::int64_t identifier() const;
};
