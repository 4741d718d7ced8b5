// SPDX-License-Identifier: MIT
#include "platform/x11/X11TaskBar.h"

void X11TaskBar::setListed(std::uint64_t window, bool isListed) {
    if (!m_connection.isAlive())
        return;
    // EWMH, _NET_WM_STATE: what to do, with which two states, requested by an ordinary application.
    constexpr quint32 kRemove = 0;
    constexpr quint32 kAdd = 1;
    constexpr quint32 kApplication = 1;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = xcb_window_t(window);
    request.type = m_connection.atom(X11Atom::NetWmState);
    request.data.data32[0] = isListed ? kRemove : kAdd;
    request.data.data32[1] = m_connection.atom(X11Atom::NetWmStateSkipTaskbar);
    request.data.data32[2] = m_connection.atom(X11Atom::NetWmStateSkipPager);
    request.data.data32[3] = kApplication;
    const quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_send_event(m_connection.xcb(), 0, m_connection.root(), mask, reinterpret_cast<const char*>(&request));
    m_connection.flush();
}
