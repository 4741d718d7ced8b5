// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <vector>

// A helper that the user's session can start at login.
struct LoginEntry {
    // For an autostart entry: the name of its file without the ending.
    QString identifier;
    // Whether the session will start it at the next login.
    bool isStarted;
};

// What the user's session starts at login. Reads the disk at each call, so not for the tick.
class LoginItems {
public:
    virtual ~LoginItems() = default;

    // All items that the session knows, each once.
    virtual std::vector<LoginEntry> items() const = 0;
    // Sets whether the helper with this identifier is started at login. Changes nothing if it fails.
    virtual Outcome setEnabled(const QString& identifier, bool isEnabled) = 0;
};
