// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

// Finds the window in front without a window manager: the client's window around the one with the input
// focus. Its owner passes events to it and calls look(); the answer comes through the callback.
class X11FocusWindow {
public:
    // The events to select on a window, to learn when the focus leaves it.
    static constexpr quint32 kEventMask =
        XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

    // `found` gets the client's window, or 0 if nothing has the focus. `connection` outlives this object.
    X11FocusWindow(X11Connection& connection, std::function<void(xcb_window_t window)> found);

    // Whether an event says that the focus may have moved.
    static bool isAboutFocus(const xcb_generic_event_t& event);
    // Asks the server; call the connection's flush() afterwards.
    void look();

private:
    void takeInFocus(const void* reply);
    // Asks whether `window` is the client's own; if not, goes on with its parent.
    void climb(xcb_window_t window);
    void takeInParent(xcb_window_t window, const void* tree);

    X11Connection& m_connection;
    std::function<void(xcb_window_t)> m_found;
    // Answers to earlier questions are ignored.
    quint64 m_question = 0;
    bool m_isClient = false;
};
