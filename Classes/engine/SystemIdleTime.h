// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/values/SystemLog.h"

#include <functional>
#include <optional>

// For how long the user has not touched anything, in whole "seconds" of 2^30 nanoseconds: idle time has
// always been counted in these here. Without a display the process cannot do its work and ends with status 1.
class SystemIdleTime {
public:
    using Exit = std::function<void(int status)>;

    // `exit` ends the process; if it returns, the idle time is 0. The other arguments must outlive this
    // object.
    SystemIdleTime(IdleTime& source, Clock& clock, SystemLog& log, Exit exit);

    // Asks the display.
    std::uint64_t seconds();
    // When the user last touched something, if the idle time is `seconds` of these seconds.
    Instant lastInput(std::uint64_t seconds) const;
    // The same to the nanosecond, by the display's last answer.
    Instant lastInput() const;
    // Whether the user has been idle for at least this many minutes. Asks the display only if that is
    // possible: the idle time cannot have grown by more than the time that has passed since the last answer.
    bool hasReachedMinutes(std::int64_t minutes);
    // When that can be so at the earliest; may be in the past.
    Instant canReachMinutesAt(std::int64_t minutes) const;
    // Calls `hearer` when somebody who has touched nothing for a while does so again, if the desktop tells of it now.
    Subscription observeInput(News::Hearer hearer) const { return m_source.observeInput(std::move(hearer)); }
    bool tellsOfInput() const { return m_source.tellsOfInput(); }

    // The machine has just woken up, and somebody woke it: idle time counts from now at the earliest.
    // Displays do not know this and still count from the last input before the sleep.
    void noteWakeUp() { m_wokenUpAt = m_clock.monotonic(); }

private:
    std::chrono::nanoseconds read();
    void tellLack(IdleReading::Lack lack);

    struct Reading {
        std::chrono::nanoseconds idle;
        std::chrono::nanoseconds at;
    };

    IdleTime& m_source;
    Clock& m_clock;
    SystemLog& m_log;
    Exit m_exit;
    std::optional<Reading> m_last;
    std::optional<std::chrono::nanoseconds> m_wokenUpAt;
};
