// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <vector>

// Something that the user's session knows to start.
struct LoginEntry {
    // Of an autostart entry: its file's name without the ending.
    QString identifier;
    // Whether the session does start it, at the next login.
    bool isStarted;
};

// What the user's session starts at login. Reads the disk when asked: not for the tick.
class LoginItems {
public:
    virtual ~LoginItems() = default;

    // All that the session knows, each once.
    virtual std::vector<LoginEntry> items() const = 0;
    // Whether the helper of that identifier is started at login. Nothing has changed after a failure.
    virtual Outcome setEnabled(const QString& identifier, bool isEnabled) = 0;
};
