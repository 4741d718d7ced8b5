// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Whether the desktop has a place for an icon of ours. It may come late, go and come back. Main thread only.
class SystemTray {
public:
    enum class Offer {
        // The desktop may still be starting.
        Unknown,
        None,
        // The icon is a window of ours, and so is its menu.
        Embedded,
        // Icon and menu are handed to the desktop, which draws both itself.
        Exported,
    };

    virtual ~SystemTray() = default;

    // No icon may be made before it is Embedded or Exported: which of the two it becomes is decided for the life of the
    // process when the first one is made.
    virtual Offer offer() const = 0;
    // Calls `changed` after the offer has changed. Replaces the last one; empty ends it.
    virtual void observe(std::function<void()> changed) = 0;
    virtual QString describe() const = 0;
};
