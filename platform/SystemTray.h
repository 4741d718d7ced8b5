// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Whether the desktop has a tray for our icon. The tray may come late, go and come back. Main thread only.
class SystemTray {
public:
    enum class Offer {
        // The desktop may still be starting.
        Unknown,
        None,
        // Icon and menu are windows of ours.
        Embedded,
        // The desktop gets icon and menu as data and draws both itself.
        Exported,
    };

    virtual ~SystemTray() = default;

    // Do not make an icon before this is Embedded or Exported: the first icon that is made decides between
    // them for the life of the process.
    virtual Offer offer() const = 0;
    // Calls `changed` after each change of the offer. Replaces the previous function; an empty one ends the
    // calls.
    virtual void observe(std::function<void()> changed) = 0;
    virtual QString describe() const = 0;
};
