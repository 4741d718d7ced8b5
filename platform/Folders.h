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

    // From the environment and the XDG user directories; below the home that the password file names where the environment
    // has none. Empty where neither names one.
    static Folders forUser();
    // Has this program and what it starts find that home in the environment. False if there is none: then there is no place
    // for an account, and none is made where others could be before us.
    static bool ensureHome();
};
