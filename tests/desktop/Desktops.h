// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/harness/Packaged.h"

// The executable of a window manager or compositor by its name in the tests.
inline QString executableOf(const QString& desktop) {
    if (desktop == QLatin1String("kwin"))
        return QStringLiteral("kwin_wayland");
    return desktop == QLatin1String("gnome") ? QStringLiteral("gnome-shell") : desktop;
}
