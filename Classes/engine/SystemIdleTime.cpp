// SPDX-License-Identifier: MIT
#include "Classes/engine/SystemIdleTime.h"

#include <algorithm>

namespace {

// A division by 2^30 instead of 10^9: these "seconds" are 7 % too long, but every account so far was recorded
// with them.
constexpr int kSecondShift = 30;
// Whatever a display says, nobody has been away for longer than this.
constexpr std::chrono::nanoseconds kLongest = std::chrono::years(50);

std::uint64_t secondsOf(std::chrono::nanoseconds time) {
    return std::uint64_t(time.count()) >> kSecondShift;
}

} // namespace

SystemIdleTime::SystemIdleTime(IdleTime& source, Clock& clock, SystemLog& log, Exit exit)
    : m_source(source)
    , m_clock(clock)
    , m_log(log)
    , m_exit(std::move(exit)) {}

std::uint64_t SystemIdleTime::seconds() {
    std::chrono::nanoseconds idle = read();
    if (m_wokenUpAt)
        idle = std::min(idle, m_clock.monotonic() - *m_wokenUpAt);
    m_last = Reading{idle, m_clock.monotonic()};
    return secondsOf(idle);
}

Instant SystemIdleTime::lastInput(std::uint64_t seconds) const {
    return m_clock.instant() - std::chrono::nanoseconds(seconds << kSecondShift);
}

Instant SystemIdleTime::lastInput() const {
    if (!m_last)
        return m_clock.instant();
    return m_clock.instant() - m_last->idle - (m_clock.monotonic() - m_last->at);
}

bool SystemIdleTime::hasReachedMinutes(std::int64_t minutes) {
    const auto isReachedBy = [minutes](std::uint64_t seconds) {
        return double(minutes) <= double(seconds) / 60.0;
    };
    if (isReachedBy(0))
        return true;
    if (m_last) {
        const std::chrono::nanoseconds atMost = m_last->idle + (m_clock.monotonic() - m_last->at);
        if (!isReachedBy(secondsOf(atMost)))
            return false;
    }
    return isReachedBy(seconds());
}

Instant SystemIdleTime::canReachMinutesAt(std::int64_t minutes) const {
    const std::int64_t most = secondsOf(kLongest);
    const std::chrono::nanoseconds length(std::clamp<std::int64_t>(minutes, 0, most / 60) * 60
                                          << kSecondShift);
    return m_last ? Instant(m_last->at - m_last->idle) + length : m_clock.instant();
}

std::chrono::nanoseconds SystemIdleTime::read() {
    using namespace std::chrono_literals;
    const IdleReading reading = m_source.read();
    if (reading.idle)
        return std::clamp(*reading.idle, 0ns, kLongest);
    tellLack(reading.lack);
    return 0ns;
}

void SystemIdleTime::tellLack(IdleReading::Lack lack) {
    switch (lack) {
    case IdleReading::Lack::NoDisplay:
        m_log.print(QStringLiteral("Error accessing IOHIDSystem"));
        m_exit(1);
        break;
    case IdleReading::Lack::NoInput:
        m_log.print(QStringLiteral("Iterator's empty!"));
        m_exit(1);
        break;
    case IdleReading::Lack::NoAnswer:
        m_log.print(QStringLiteral("Couldn't grab properties of system"));
        [[fallthrough]];
    case IdleReading::Lack::NotCounted:
        m_log.print(QStringLiteral("Can't find idle time"));
        break;
    }
}
