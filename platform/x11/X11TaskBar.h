// SPDX-License-Identifier: MIT
#pragma once

#include "platform/TaskBar.h"
#include "platform/x11/X11Connection.h"

// Asks the window manager (EWMH) to leave a window out of the task bar and the pager. Window managers that
// cannot do that list it anyway.
class X11TaskBar : public TaskBar {
public:
    // The connection outlives it.
    explicit X11TaskBar(X11Connection& connection)
        : m_connection(connection) {}

    void setListed(std::uint64_t window, bool isListed) override;
    QString describe() const override { return QStringLiteral("task bar: X11 window state"); }

private:
    X11Connection& m_connection;
};
