// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <vector>

// A part of the screen in pixels.
struct DisplayArea {
    int x;
    int y;
    int width;
    int height;
};

// Looks at an X display in the plainest way, one question at a time. Tests compare with it and wait for it.
class DisplayProbe {
public:
    // Aborts the test program when the display cannot be reached.
    explicit DisplayProbe(const QString& display);

    // Whether a window manager says that it is in charge.
    bool hasWindowManager() const;
    // Asks the window manager something, whose answer windowManagerHasAnswered() reports: it says that it is
    // in charge a little before it is.
    void askWindowManager();
    // Also works if the manager does not claim to support the question, like KWin.
    bool windowManagerHasAnswered() const;
    // The root's _NET_ACTIVE_WINDOW; 0 when there is none.
    xcb_window_t activeWindow() const;
    // Sets _NET_ACTIVE_WINDOW in the window manager's place. The server has it when this returns; no event
    // loop turns meanwhile.
    void sayActiveWindow(xcb_window_t window) const;
    // The root's _NET_CLIENT_LIST.
    std::vector<xcb_window_t> windows() const;
    bool isInWindowList(xcb_window_t window) const;
    // How many windows are on the screen that the window manager leaves alone, such as menus.
    std::size_t popups() const;
    // The first 4 bytes of a property as a number; 0 when there are none.
    quint32 number(xcb_window_t window, const char* property) const;
    QByteArray text(xcb_window_t window, const char* property) const;
    // Whether a window's _NET_WM_STATE has that state.
    bool hasState(xcb_window_t window, const char* state) const;
    // Where a program's window is within another one, at any depth; absent if it shows none there.
    std::optional<DisplayArea> areaOf(const char* instanceName, xcb_window_t within) const;
    // The picture of a part of the screen, as bytes to compare.
    QByteArray picture(const DisplayArea& area) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_atom_t atom(const char* name) const;
    QByteArray property(xcb_window_t window, const char* name) const;
    std::vector<xcb_window_t> children(xcb_window_t window) const;
    std::optional<DisplayArea> areaOf(xcb_window_t window) const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root = 0;
    // Never shown; the window manager puts its answer on it.
    xcb_window_t m_asking = 0;
};
