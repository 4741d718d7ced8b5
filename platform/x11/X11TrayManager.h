// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

#include <functional>

// Whether a program on the display takes windows into its tray: the owner of a selection (freedesktop.org
// System Tray Protocol). Has a connection of its own, because it needs other events of the root window than
// the desktop does.
class X11TrayManager {
public:
    // `changed` is called when isThere() has changed. The first answer comes in a later turn of the loop.
    X11TrayManager(std::unique_ptr<X11Connection> connection, std::function<void()> changed);

    bool isThere() const { return m_owner != XCB_NONE; }

private:
    void begin();
    void askForOwner();
    void takeIn(const xcb_generic_event_t& event);
    void setOwner(xcb_window_t owner);

    std::unique_ptr<X11Connection> m_connection;
    std::function<void()> m_changed;
    xcb_window_t m_owner = XCB_NONE;
    Subscription m_news;
};
