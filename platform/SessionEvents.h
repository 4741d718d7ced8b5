// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// What happens to the user's session. Main thread only.
class SessionEvents {
public:
    struct Handlers {
        // Another session has come to the front.
        std::function<void()> wentToBackground;
        // This session is in front again.
        std::function<void()> cameToFront;
        // The machine powers off or the session ends. After it has returned, the process may be ended at any
        // moment.
        std::function<void()> aboutToEnd;
    };

    virtual ~SessionEvents() = default;

    // Replaces all handlers; empty ones are not called.
    virtual void observe(Handlers handlers) = 0;
    virtual QString describe() const = 0;
};
