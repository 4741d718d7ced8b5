// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Packaged.h"

// What must be installed for a window manager or a compositor as the tests call them.
inline QString executableOf(const QString& desktop) {
    if (desktop == QLatin1String("kwin"))
        return QStringLiteral("kwin_wayland");
    return desktop == QLatin1String("gnome") ? QStringLiteral("gnome-shell") : desktop;
}
