// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Names of GNOME Shell and of our extension on the session bus.
inline const QString kGnomeShell = QStringLiteral("org.gnome.Shell");
inline const QString kGnomeShellPath = QStringLiteral("/org/gnome/Shell");
inline const QString kGnomeShellExtensions = QStringLiteral("org.gnome.Shell.Extensions");
inline const QString kTicklogExtension = QStringLiteral("ticklog@ticklog.org");
inline const QString kTicklogShell = QStringLiteral("org.ticklog.Shell");
inline const QString kTicklogShellPath = QStringLiteral("/org/ticklog/Shell");
