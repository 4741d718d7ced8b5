// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/Product.h"

bool Product::start(const QStringList& arguments) {
    launch(m_desk.environment(), arguments);
    // Window managers put a new window in front; that must not happen after the test has begun.
    return waitFor([this] { return hasWindow() && m_desk.probe().activeWindow() == window(); });
}

bool Product::bringToFront(XClient& client, xcb_window_t window) const {
    return waitFor([&] {
        if (m_desk.probe().activeWindow() == window)
            return true;
        client.activate(window);
        return false;
    });
}

xcb_window_t Product::window() const {
    for (const xcb_window_t window : m_desk.probe().windows())
        if (m_desk.probe().text(window, "_NET_WM_NAME") == "Ticklog")
            return window;
    return 0;
}
