// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

// Whether our windows are listed in the task bar and the pager. Main thread only.
class TaskBar {
public:
    virtual ~TaskBar() = default;

    // `window` is the display's number of a window that is on the screen. Desktops forget this setting when
    // the window leaves the screen, so set it again each time it comes back.
    virtual void setListed(std::uint64_t window, bool isListed) = 0;
    virtual QString describe() const = 0;
};
