// SPDX-License-Identifier: MIT
#include "platform/x11/X11IdleTime.h"

namespace {

constexpr std::chrono::seconds kTimeBetweenQuestions{1};
// No one who is to be told of idleness waits for less than a minute.
constexpr std::chrono::seconds kLongestCountedOn{30};

IdleReading reading(std::chrono::nanoseconds idle) {
    return {IdleReading::State::Read, PropertyListValue(std::int64_t(idle.count()))};
}

} // namespace

X11IdleTime::X11IdleTime(X11Connection& connection, const Clock& clock)
    : m_connection(connection)
    , m_clock(clock) {}

IdleReading X11IdleTime::read() {
    if (!m_connection.isAlive()) {
        m_last.reset();
        return {IdleReading::State::NoProperties, {}};
    }
    const std::chrono::nanoseconds now = m_clock.monotonic();
    if (m_last && now - m_last->readAt < kTimeBetweenQuestions) {
        const std::chrono::nanoseconds countedOn = m_last->idle + (now - m_last->readAt);
        if (countedOn < kLongestCountedOn)
            return reading(countedOn);
    }
    m_last.reset();
    if (!m_connection.extension(xcb_screensaver_id))
        return {IdleReading::State::Read, {}};
    const auto cookie = xcb_screensaver_query_info(m_connection.xcb(), m_connection.root());
    const X11Owned<void> reply = m_connection.wait(cookie.sequence);
    const auto* info = static_cast<const xcb_screensaver_query_info_reply_t*>(reply.get());
    if (!info)
        return {IdleReading::State::NoProperties, {}};
    m_last = Answer{std::chrono::milliseconds(info->ms_since_user_input), now};
    return reading(m_last->idle);
}

QString X11IdleTime::describe() const {
    return QStringLiteral("X11: the screen-saver extension counts the time since the last input");
}
