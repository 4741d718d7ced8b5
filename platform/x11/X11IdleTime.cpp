// SPDX-License-Identifier: MIT
#include "platform/x11/X11IdleTime.h"

#include <chrono>

IdleReading X11IdleTime::read() {
    if (!m_connection.isAlive())
        return IdleReading::Lack::NoAnswer;
    if (!m_connection.extension(xcb_screensaver_id))
        return IdleReading::Lack::NotCounted;
    const auto cookie = xcb_screensaver_query_info(m_connection.xcb(), m_connection.root());
    const X11Owned<void> reply = m_connection.wait(cookie.sequence);
    const auto* info = static_cast<const xcb_screensaver_query_info_reply_t*>(reply.get());
    if (!info)
        return IdleReading::Lack::NoAnswer;
    return std::chrono::nanoseconds(std::chrono::milliseconds(info->ms_since_user_input));
}

QString X11IdleTime::describe() const {
    return QStringLiteral("X11: the screen-saver extension counts the time since the last input");
}
