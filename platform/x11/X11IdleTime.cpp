// SPDX-License-Identifier: MIT
#include "platform/x11/X11IdleTime.h"

#include <xcb/sync.h>

#include <string_view>

namespace {

constexpr std::string_view kIdleCounter = "IDLETIME";

// The name follows its length directly. The library's own accessor looks for it behind the padding of the struct, which
// is not sent.
bool isIdleCounter(const xcb_sync_systemcounter_t& counter) {
    const auto* name = reinterpret_cast<const char*>(&counter.name_len) + sizeof counter.name_len;
    return std::string_view(name, counter.name_len) == kIdleCounter;
}

} // namespace

X11IdleTime::X11IdleTime(X11Connection& connection, std::chrono::milliseconds pause)
    : m_connection(connection)
    , m_pause(pause) {
    m_news = m_connection.observe({[this] { askForCounter(); },
                                   [this] {
                                       m_alarm = 0;
                                       m_input.tell();
                                   },
                                   [this](const xcb_generic_event_t& event) {
                                       const auto* sync = m_connection.extension(xcb_sync_id);
                                       if (m_alarm != 0 && sync &&
                                           (event.response_type & 0x7F) ==
                                               sync->first_event + XCB_SYNC_ALARM_NOTIFY)
                                           m_input.tell();
                                   },
                                   {}});
    if (m_connection.isAlive())
        askForCounter();
}

X11IdleTime::~X11IdleTime() {
    if (m_alarm != 0 && m_connection.isAlive())
        xcb_sync_destroy_alarm(m_connection.xcb(), m_alarm);
}

void X11IdleTime::askForCounter() {
    if (!m_connection.extension(xcb_sync_id))
        return;
    m_connection.expect(
        xcb_sync_initialize(m_connection.xcb(), XCB_SYNC_MAJOR_VERSION, XCB_SYNC_MINOR_VERSION).sequence,
        [](const void*) {});
    m_connection.expect(xcb_sync_list_system_counters(m_connection.xcb()).sequence,
                        [self = std::weak_ptr(m_self)](const void* counters) {
                            if (const auto here = self.lock())
                                (*here)->setAlarm(counters);
                        });
    m_connection.flush();
}

// The alarm rings whenever the counter falls below the pause, for as long as it exists.
void X11IdleTime::setAlarm(const void* counters) {
    if (!counters)
        return;
    auto counter = xcb_sync_list_system_counters_counters_iterator(
        static_cast<const xcb_sync_list_system_counters_reply_t*>(counters));
    while (counter.rem > 0 && !isIdleCounter(*counter.data))
        xcb_sync_systemcounter_next(&counter);
    if (counter.rem == 0)
        return;
    xcb_sync_create_alarm_value_list_t alarm{};
    alarm.counter = counter.data->counter;
    alarm.valueType = XCB_SYNC_VALUETYPE_ABSOLUTE;
    alarm.value.lo = std::uint32_t(m_pause.count());
    alarm.testType = XCB_SYNC_TESTTYPE_NEGATIVE_TRANSITION;
    alarm.events = 1;
    m_alarm = xcb_generate_id(m_connection.xcb());
    xcb_sync_create_alarm_aux(m_connection.xcb(), m_alarm,
                              XCB_SYNC_CA_COUNTER | XCB_SYNC_CA_VALUE_TYPE | XCB_SYNC_CA_VALUE |
                                  XCB_SYNC_CA_TEST_TYPE | XCB_SYNC_CA_DELTA | XCB_SYNC_CA_EVENTS,
                              &alarm);
    m_connection.flush();
}

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
