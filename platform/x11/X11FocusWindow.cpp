// SPDX-License-Identifier: MIT
#include "platform/x11/X11FocusWindow.h"

X11FocusWindow::X11FocusWindow(X11Connection& connection, std::function<void(xcb_window_t)> found)
    : m_connection(connection)
    , m_found(std::move(found)) {}

bool X11FocusWindow::isAboutFocus(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7F) {
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT:
    case XCB_UNMAP_NOTIFY:
    case XCB_DESTROY_NOTIFY:
    case XCB_REPARENT_NOTIFY:
        return true;
    default:
        return false;
    }
}

void X11FocusWindow::look() {
    const auto cookie = xcb_get_input_focus(m_connection.xcb());
    m_connection.expect(cookie.sequence, [this, question = ++m_question](const void* reply) {
        if (question == m_question)
            takeInFocus(reply);
    });
}

void X11FocusWindow::takeInFocus(const void* reply) {
    const auto* focus = static_cast<const xcb_get_input_focus_reply_t*>(reply);
    // None, or the one under the pointer.
    if (!focus || focus->focus <= XCB_INPUT_FOCUS_POINTER_ROOT || focus->focus == m_connection.root()) {
        m_found(XCB_WINDOW_NONE);
        return;
    }
    xcb_change_window_attributes(m_connection.xcb(), focus->focus, XCB_CW_EVENT_MASK, &kEventMask);
    climb(focus->focus);
}

void X11FocusWindow::climb(xcb_window_t window) {
    xcb_connection_t* xcb = m_connection.xcb();
    const auto classCookie = xcb_get_property(xcb, 0, window, XCB_ATOM_WM_CLASS, XCB_ATOM_ANY, 0, 1);
    m_connection.expect(classCookie.sequence, [this](const void* reply) {
        m_isClient = reply && static_cast<const xcb_get_property_reply_t*>(reply)->type != XCB_ATOM_NONE;
    });
    const auto treeCookie = xcb_query_tree(xcb, window);
    m_connection.expect(treeCookie.sequence, [this, window, question = m_question](const void* reply) {
        if (question == m_question)
            takeInParent(window, reply);
    });
}

void X11FocusWindow::takeInParent(xcb_window_t window, const void* reply) {
    const auto* tree = static_cast<const xcb_query_tree_reply_t*>(reply);
    if (!tree)
        m_found(XCB_WINDOW_NONE);
    else if (m_isClient || tree->parent == m_connection.root() || tree->parent == XCB_WINDOW_NONE)
        m_found(window);
    else
        climb(tree->parent);
}
