// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

// Finds the window in front where no window manager tells: the client's window around the one that has the
// input focus. The owner hands it events and asks it to look; the answer comes through the callback.
class X11FocusWindow {
public:
    // What must be selected on a window to learn that the focus leaves it.
    static constexpr quint32 kEventMask =
        XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

    // `found` gets the client's window, or 0 when nothing has the focus. `connection` outlives this.
    X11FocusWindow(X11Connection& connection, std::function<void(xcb_window_t window)> found);

    // Whether an event says that the focus may have moved.
    static bool isAboutFocus(const xcb_generic_event_t& event);
    // Asks; must be followed by the connection's flush.
    void look();

private:
    void takeInFocus(const void* reply);
    // Asks whether `window` is a client's own; if not, goes on with the one around it.
    void climb(xcb_window_t window);
    void takeInParent(xcb_window_t window, const void* tree);

    X11Connection& m_connection;
    std::function<void(xcb_window_t)> m_found;
    // Only the answer to the last question counts.
    quint64 m_question = 0;
    bool m_isClient = false;
};
