// SPDX-License-Identifier: MIT
#include "platform/x11/X11TrayManager.h"

namespace {

constexpr quint8 kSentEvent = 0x80;

} // namespace

X11TrayManager::X11TrayManager(std::unique_ptr<X11Connection> connection, std::function<void()> changed)
    : m_connection(std::move(connection))
    , m_changed(std::move(changed)) {
    m_news = m_connection->observe({.connected = [this] { begin(); },
                                    .lost = [this] { setOwner(XCB_NONE); },
                                    .event = [this](const xcb_generic_event_t& event) { takeIn(event); },
                                    .settled = {}});
    begin();
    m_connection->flush();
}

void X11TrayManager::begin() {
    // A new tray announces itself to those who select this.
    const quint32 mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection->xcb(), m_connection->root(), XCB_CW_EVENT_MASK, &mask);
    askForOwner();
}

void X11TrayManager::askForOwner() {
    const auto cookie =
        xcb_get_selection_owner(m_connection->xcb(), m_connection->atom(X11Atom::NetSystemTrayS0));
    m_connection->expect(cookie.sequence, [this](const void* reply) {
        const auto* answer = static_cast<const xcb_get_selection_owner_reply_t*>(reply);
        setOwner(answer ? answer->owner : XCB_NONE);
    });
}

void X11TrayManager::takeIn(const xcb_generic_event_t& event) {
    const int type = event.response_type & ~kSentEvent;
    if (type == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == m_connection->atom(X11Atom::Manager) &&
            message.data.data32[1] == m_connection->atom(X11Atom::NetSystemTrayS0))
            askForOwner();
    } else if (type == XCB_DESTROY_NOTIFY) {
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == m_owner)
            askForOwner();
    }
}

void X11TrayManager::setOwner(xcb_window_t owner) {
    if (m_owner == owner)
        return;
    const bool wasThere = isThere();
    m_owner = owner;
    if (owner != XCB_NONE) {
        // The owner's end is reported. It may have ended before this was selected, so the owner is asked for
        // once more.
        const quint32 mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection->xcb(), owner, XCB_CW_EVENT_MASK, &mask);
        askForOwner();
    }
    if (wasThere != isThere())
        m_changed();
}
