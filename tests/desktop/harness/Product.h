// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/ProductProgram.h"
#include "tests/desktop/harness/XClient.h"

// The whole program on a desk, with the desk's home, as a user runs it.
class Product : public ProductProgram {
public:
    explicit Product(Desk& desk)
        : ProductProgram(desk.home())
        , m_desk(desk) {}

    // Starts it and waits until its window is in front; answers whether that happened.
    bool start(const QStringList& arguments = {});

    // Asks the window manager again as long as another window comes to the front instead.
    bool bringToFront(XClient& client, xcb_window_t window) const;

    // Its window; 0 while it has none.
    xcb_window_t window() const;
    bool hasWindow() const { return window() != 0; }

private:
    Desk& m_desk;
};
