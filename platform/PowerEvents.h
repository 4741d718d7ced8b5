// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/News.h"

#include <QString>

// Sleep and waking of the machine. Main thread only.
class PowerEvents {
public:
    struct Hearer {
        // The machine will sleep, or may. It waits until all who hear of it have returned, but not for long.
        std::function<void()> aboutToSleep;
        // The machine has woken up, or does not sleep after all.
        std::function<void()> woke;
    };

    virtual ~PowerEvents() = default;

    // Whether sleep is reported at all.
    virtual bool tellsOfSleep() const = 0;
    Subscription observe(Hearer hearer) { return m_news.observe(std::move(hearer)); }
    virtual QString describe() const = 0;

protected:
    NewsOf<Hearer> m_news;
};
