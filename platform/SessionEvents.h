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
        // The machine goes down or the session ends. When it returns, the process may be gone at any moment.
        std::function<void()> aboutToEnd;
    };

    virtual ~SessionEvents() = default;

    // Replaces the handlers; empty ones are not called.
    virtual void observe(Handlers handlers) = 0;
    virtual QString describe() const = 0;
};
