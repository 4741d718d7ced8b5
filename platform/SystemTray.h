// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"

#include <QString>

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
    // Calls `hearer` after each change of the offer.
    virtual Subscription observe(News::Hearer hearer) = 0;
    virtual QString describe() const = 0;
};
