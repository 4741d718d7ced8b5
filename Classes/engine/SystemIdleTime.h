// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/values/SystemLog.h"

#include <functional>
#include <optional>

// How long the user has not touched anything, in whole "seconds" of 2^30 nanoseconds, as idle time has always been
// counted here. Without any display the process cannot do its work and ends with status 1.
class SystemIdleTime {
public:
    using Exit = std::function<void(int status)>;

    // `exit` ends the process; should it return, the idle time is 0. The rest must outlive this.
    SystemIdleTime(IdleTime& source, Clock& clock, SystemLog& log, Exit exit);

    // Asks the display.
    std::uint64_t seconds();
    // When the user touched something last, if there have been so many of these seconds since.
    Instant lastInput(std::uint64_t seconds) const;
    // The same to the nanosecond, as the display has told it last.
    Instant lastInput() const;
    // Whether the user has been idle for at least so many minutes. Asks the display only if that is possible at all:
    // since the last answer the idle time cannot have grown by more than the time that has passed.
    bool hasReachedMinutes(std::int64_t minutes);

    // The machine has just been woken up, which somebody did: nobody has been idle for longer than since now. Displays
    // do not count that, and go on from the last input before the sleep.
    void noteWakeUp() { m_wokenUpAt = m_clock.monotonic(); }

private:
    std::uint64_t readNanoseconds();
    std::uint64_t nanosecondsOf(const PropertyListValue& idleTime);
    void fail(const QString& message);

    struct Reading {
        std::uint64_t nanoseconds;
        std::chrono::nanoseconds at;
    };

    IdleTime& m_source;
    Clock& m_clock;
    SystemLog& m_log;
    Exit m_exit;
    std::optional<Reading> m_last;
    std::optional<std::chrono::nanoseconds> m_wokenUpAt;
};
