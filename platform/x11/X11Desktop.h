// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/FollowedDesktop.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11FocusWindow.h"
#include "platform/x11/X11Window.h"

#include <unordered_map>

// The windows of an X desktop and the application in front, as the window manager reports them (EWMH) or,
// without one, by the input focus. Everything is kept up to date by the server's events. Main thread only.
class X11Desktop : public FollowedDesktop {
public:
    // `display` is a display name; empty for the one in the environment. Its answers are there when this
    // returns. Refused if the X server belongs to a Wayland compositor: its programs would be credited while
    // others are in front. When the server goes, the answers are empty until it is back. The other arguments
    // outlive the desktop.
    static Result<std::unique_ptr<X11Desktop>> open(const QByteArray& display, RunLoop& runLoop,
                                                    SystemLog& log, DesktopEntries& entries);

    QString describe() const override;
    void askForSign() override;

    // For other classes that ask the same server. Lives as long as this desktop.
    X11Connection& connection() { return *m_connection; }

    quint64 roundTrips() const { return m_connection->roundTrips(); }

private:
    struct Client {
        Client(xcb_window_t id, std::int64_t ownNumber)
            : window(id)
            , number(ownNumber) {}

        X11Window window;
        // The window's number in the window list.
        std::int64_t number;
        // Found when the window is known, and again when it changes what it says about its program.
        ApplicationRecord application;
        // Whether its class is that of an installed program, so that nothing better can come.
        bool isInstalled = false;
        // Whether an installed program at all gave it its name, such as that which starts its process.
        bool isNamed = false;
    };

    X11Desktop(std::unique_ptr<X11Connection> connection, RunLoop& runLoop, DesktopEntries& entries);
    void begin();
    void end();
    void selectOnRoot();
    void takeIn(const xcb_generic_event_t& event);
    void takeInPropertyChange(const xcb_property_notify_event_t& event);
    void takeInEnd(xcb_window_t window);
    void settle();

    void askRoot(X11Atom property, quint32 length, X11Connection::ReplyHandler handler);
    void askForManager();
    void takeInManager(xcb_window_t manager, bool isThere);
    void askForActiveWindow();
    void askForWindows();
    void takeInWindows(std::vector<xcb_window_t> frontToBack);
    void takeInFocus(xcb_window_t window);
    void askWindow(Client& client);
    void takeInFact(xcb_window_t window, X11Window::Fact fact, const void* reply);

    std::int64_t numberOf(xcb_window_t window);
    const Client* client(xcb_window_t window) const;
    void findApplication(Client& client) const;
    const Client& speakerFor(const Client& client) const;
    Front frontOf(const Client& active) const;
    bool isBeforeItsWindow(const Client& dialogue) const;
    const ApplicationRecord& applicationOf(const Client& speaker) const;
    void updateFront();
    std::vector<WindowListEntry> listed() const override;

    std::unique_ptr<X11Connection> m_connection;
    X11FocusWindow m_focus;

    std::unordered_map<xcb_window_t, Client> m_clients;
    // The numbers of all windows seen, for as long as they exist. The server gives a free id to the next
    // client, and that is another window.
    std::unordered_map<xcb_window_t, std::int64_t> m_numbers;
    std::vector<xcb_window_t> m_frontToBack;
    // The window by which the window manager shows that it runs; 0 without one.
    xcb_window_t m_manager = 0;
    xcb_window_t m_activeWindow = 0;
    bool m_isManagerUnasked = false;
    bool m_isActiveUnasked = false;
    bool m_areWindowsUnasked = false;
    Subscription m_news;
};
