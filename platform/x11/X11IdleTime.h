// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/foundation/Clock.h"
#include "platform/x11/X11Connection.h"

// The time since the last input, as the X server's screen-saver extension counts it. While the user is active
// it asks once a second and counts on by itself in between; after half a minute without input it asks every
// time, because the end of a long absence must not be seen late.
class X11IdleTime : public IdleTime {
public:
    // Both outlive it.
    X11IdleTime(X11Connection& connection, const Clock& clock);

    IdleReading read() override;
    QString describe() const override;

private:
    struct Answer {
        std::chrono::nanoseconds idle;
        std::chrono::nanoseconds readAt;
    };

    X11Connection& m_connection;
    const Clock& m_clock;
    std::optional<Answer> m_last;
};
