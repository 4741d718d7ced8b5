// SPDX-License-Identifier: MIT
#include "Classes/engine/SystemIdleTime.h"

#include <algorithm>
#include <cstring>

namespace {

// A division by 2^30 instead of 10^9: these "seconds" are 7 % too long, but every account so far was recorded
// with them.
constexpr int kSecondShift = 30;

} // namespace

SystemIdleTime::SystemIdleTime(IdleTime& source, Clock& clock, SystemLog& log, Exit exit)
    : m_source(source)
    , m_clock(clock)
    , m_log(log)
    , m_exit(std::move(exit)) {}

std::uint64_t SystemIdleTime::seconds() {
    std::uint64_t nanoseconds = readNanoseconds();
    if (m_wokenUpAt)
        nanoseconds = std::min(nanoseconds, std::uint64_t((m_clock.monotonic() - *m_wokenUpAt).count()));
    m_last = Reading{nanoseconds, m_clock.monotonic()};
    return nanoseconds >> kSecondShift;
}

Instant SystemIdleTime::lastInput(std::uint64_t seconds) const {
    return m_clock.instant() - std::chrono::nanoseconds(seconds << kSecondShift);
}

Instant SystemIdleTime::lastInput() const {
    if (!m_last)
        return m_clock.instant();
    // Any number may be told.
    const auto idle =
        std::min(m_last->nanoseconds, std::uint64_t(std::chrono::nanoseconds::max().count() / 4));
    return m_clock.instant() - std::chrono::nanoseconds(idle) - (m_clock.monotonic() - m_last->at);
}

bool SystemIdleTime::hasReachedMinutes(std::int64_t minutes) {
    const auto isReachedBy = [minutes](std::uint64_t seconds) {
        return double(minutes) <= double(seconds) / 60.0;
    };
    if (isReachedBy(0))
        return true;
    if (m_last) {
        const auto passed = std::uint64_t((m_clock.monotonic() - m_last->at).count());
        const std::uint64_t atMost = std::max(m_last->nanoseconds, m_last->nanoseconds + passed);
        if (!isReachedBy(atMost >> kSecondShift))
            return false;
    }
    return isReachedBy(seconds());
}

std::uint64_t SystemIdleTime::readNanoseconds() {
    const IdleReading reading = m_source.read();
    switch (reading.state) {
    case IdleReading::State::NoSystem:
        fail(QStringLiteral("Error accessing IOHIDSystem"));
        return 0;
    case IdleReading::State::NoDevice:
        fail(QStringLiteral("Iterator's empty!"));
        return 0;
    case IdleReading::State::NoProperties:
        m_log.print(QStringLiteral("Couldn't grab properties of system"));
        m_log.print(QStringLiteral("Can't find idle time"));
        return 0;
    case IdleReading::State::Read:
        break;
    }
    return nanosecondsOf(reading.idleNanoseconds);
}

std::uint64_t SystemIdleTime::nanosecondsOf(const PropertyListValue& idleTime) {
    if (idleTime.isAbsent()) {
        m_log.print(QStringLiteral("Can't find idle time"));
        return 0;
    }
    if (const QByteArray* data = idleTime.asData()) {
        std::uint64_t nanoseconds = 0;
        std::memcpy(&nanoseconds, data->constData(), std::min(sizeof nanoseconds, std::size_t(data->size())));
        return nanoseconds;
    }
    if (const auto nanoseconds = idleTime.asInteger())
        return std::uint64_t(*nanoseconds);
    fail(QStringLiteral("%1: unsupported type\n").arg(idleTime.typeIdentifier()));
    return 0;
}

void SystemIdleTime::fail(const QString& message) {
    m_log.print(message);
    m_exit(1);
}
