// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QString>

#include <vector>

// Something that the user's session knows to start.
struct LoginJob {
    QString label;
    // Whether the session does start it, at the next login.
    bool isOnDemand;
};

// What the user's session starts at login. Reads the disk when asked: not for the tick.
class LoginItems {
public:
    virtual ~LoginItems() = default;

    // All that the session knows, each label once.
    virtual std::vector<LoginJob> copyAllJobDictionaries() const = 0;
    // Whether the helper of that identifier is started at login. Nothing has changed after a failure.
    virtual Outcome setEnabled(const QString& identifier, bool isEnabled) = 0;
};
