// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/x11/X11Connection.h"

#include <chrono>

// The time since the last input, from the X server's screen-saver extension. Each reading is a round trip, so
// the caller decides how often to read it. That there is input again is told by an alarm on the server's idle
// counter.
class X11IdleTime : public IdleTime {
public:
    // The connection outlives it. `pause`: input after a shorter one is not told.
    explicit X11IdleTime(X11Connection& connection,
                         std::chrono::milliseconds pause = std::chrono::seconds(30));
    ~X11IdleTime() override;

    IdleReading read() override;
    bool tellsOfInput() const override { return m_alarm != 0; }
    QString describe() const override;

private:
    void askForCounter();
    void setAlarm(const void* counters);

    X11Connection& m_connection;
    std::chrono::milliseconds m_pause;
    // Replies that come after this object's end find it gone.
    std::shared_ptr<X11IdleTime*> m_self = std::make_shared<X11IdleTime*>(this);
    // The server's number of the alarm; 0 for none.
    std::uint32_t m_alarm = 0;
    Subscription m_news;
};
