// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Where this user's files lie. Full paths without a slash at the end; the folders need not exist.
struct Folders {
    // Application data, including the last part "Ticklog": $XDG_DATA_HOME/Ticklog.
    QString applicationSupport;
    // The settings file: $XDG_CONFIG_HOME/org.ticklog.Ticklog.plist.
    QString settingsFile;
    // The user's documents.
    QString documents;

    // From the environment and the XDG user directories. Without a home in the environment, below the one in
    // the password file. Empty if neither names one.
    static Folders forUser();
    // Sets the home in the environment, for this program and those it starts. False if there is none: then
    // there is no place for an account, and none is made where somebody else could have prepared one.
    static bool ensureHome();
};
