// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/WaylandDesk.h"

// A real program with windows on a Wayland desk.
class WaylandClient {
public:
    // What it is made with. QtOnX11 knows no Wayland, and needs the desk to have an X server.
    enum class Kind { Qt, Gtk, QtOnX11 };

    // Its windows bear `appId`. Aborts the test program when it does not start.
    WaylandClient(const WaylandDesk& desk, const QString& appId, Kind kind = Kind::Qt);

    // Opens a window and answers its number, from 0 on.
    int open(const QString& title);
    void setTitle(int window, const QString& title);
    void close(int window);
    // Waits until the window has the focus, as the compositor tells the program. Answers whether it came.
    bool awaitFocus(int window);
    void die() { m_program->kill(); }

    std::int64_t processIdentifier() const { return m_processIdentifier; }

private:
    bool tell(const QString& command);

    std::unique_ptr<Program> m_program;
    std::int64_t m_processIdentifier;
    int m_windows = 0;
};
