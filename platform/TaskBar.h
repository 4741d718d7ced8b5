// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

// Whether windows of ours are listed in the task bar and the pager. Main thread only.
class TaskBar {
public:
    virtual ~TaskBar() = default;

    // `window` is the number that the display knows a window by, which is on the screen. Desktops forget this when the window
    // is taken off the screen: it is told anew whenever it comes back.
    virtual void setListed(std::uint64_t window, bool isListed) = 0;
    virtual QString describe() const = 0;
};
