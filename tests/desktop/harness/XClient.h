// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Desk.h"

// How a window of XClient begins. Empty texts stand for properties that are not set.
struct XWindowLook {
    // _NET_WM_NAME, as UTF-8.
    QByteArray title = {};
    // WM_NAME, as Latin-1.
    QByteArray plainTitle = {};
    QByteArray instanceName = "client";
    QByteArray className = "Client";
    // The end of a _NET_WM_WINDOW_TYPE_ name, such as "DOCK".
    QByteArray type = {};
    // Whether _NET_WM_PID tells the process.
    bool hasProcessIdentifier = true;
    bool isMapped = true;
};

// A program with windows that does exactly what it is told; when a call returns, it is done.
class XClient {
public:
    explicit XClient(const Desk& desk);

    qint64 processIdentifier() const { return m_program.processIdentifier(); }

    // Opens a window. On a desk with a window manager, waits until it is managed.
    xcb_window_t open(const XWindowLook& look);
    // Sets _NET_WM_NAME as UTF-8, and WM_NAME to something plainer, as toolkits do.
    void setTitle(xcb_window_t window, const QByteArray& utf8);
    // Sets any property of a window, or of the root (0), to bytes of any type.
    void setText(xcb_window_t window, const QByteArray& property, const QByteArray& type,
                 const QByteArray& bytes);
    // The same for numbers of 32 bits; the type is CARDINAL, WINDOW or ATOM.
    void setNumbers(xcb_window_t window, const QByteArray& property, const QByteArray& type,
                    const std::vector<quint32>& values);
    void removeProperty(xcb_window_t window, const QByteArray& property);
    void map(xcb_window_t window);
    // Asks the window manager, as a task bar would.
    void activate(xcb_window_t window);
    void minimise(xcb_window_t window);
    // Asks the X server itself.
    void focus(xcb_window_t window);
    void raise(xcb_window_t window);
    void destroy(xcb_window_t window);

    // Kills it without closing anything.
    void die() { m_program.kill(); }

private:
    // Answers what the client answered.
    QByteArray tell(const QByteArray& command);

    const Desk& m_desk;
    Program m_program;
};
