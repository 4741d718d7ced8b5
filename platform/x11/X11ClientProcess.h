// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>

// What is known of the process behind a window.
struct X11ClientProcess {
    // _NET_WM_PID: what the program itself says.
    std::optional<quint32> stated;
    // What the X server knows of whoever is at the other end of the program's socket.
    std::optional<quint32> connected;
    // WM_CLIENT_MACHINE; empty when not set.
    QByteArray machine;
    // The part of the window's number that names the X client.
    quint32 client = 0;

    // The process, or a negative number that stays the same for all windows of the client when it has none on
    // this machine.
    std::int64_t identifier() const;
};
