// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Where things lie for this user. Full paths without a slash at the end; none of the folders need exist.
struct Folders {
    // Application data, "Ticklog" included: $XDG_DATA_HOME/Ticklog.
    QString applicationSupport;
    // The settings file: $XDG_CONFIG_HOME/org.ticklog.Ticklog.plist.
    QString settingsFile;
    // The user's documents.
    QString documents;

    // From the environment and the XDG user directories.
    static Folders forUser();
};
