// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"

#include <QString>

// What happens to the user's session. Main thread only.
class SessionEvents {
public:
    struct Hearer {
        // Another session has come to the front.
        std::function<void()> wentToBackground;
        // This session is in front again.
        std::function<void()> cameToFront;
        // The machine powers off or the session ends. After all who hear of it have returned, the process may
        // be ended at any moment.
        std::function<void()> aboutToEnd;
    };

    virtual ~SessionEvents() = default;

    Subscription observe(Hearer hearer) { return m_news.observe(std::move(hearer)); }
    virtual QString describe() const = 0;

protected:
    NewsOf<Hearer> m_news;
};
