// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/x11/X11Connection.h"

// The time since the last input, from the X server's screen-saver extension. Each reading is a round trip, so
// the caller decides how often to read it.
class X11IdleTime : public IdleTime {
public:
    // The connection outlives it.
    explicit X11IdleTime(X11Connection& connection)
        : m_connection(connection) {}

    IdleReading read() override;
    QString describe() const override;

private:
    X11Connection& m_connection;
};
