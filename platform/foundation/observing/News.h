// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <functional>

// Something that whoever wants to can hear of, from when they ask for it until their subscription goes.
// Hearers are told in the order in which they asked; each may ask, end its subscription or destroy the teller
// while it is told.
class News {
public:
    using Hearer = std::function<void()>;

    Subscription observe(Hearer hearer) const { return m_hearers->add(std::move(hearer)); }
    void tell() const {
        m_hearers->forEach([](const Hearer& hear) { hear(); });
    }
    bool isHeard() const { return !m_hearers->isEmpty(); }

private:
    QExplicitlySharedDataPointer<Listeners<Hearer>> m_hearers{new Listeners<Hearer>};
};

// The same for news of several kinds: a hearer is a struct with a function for each kind, which may be empty.
template<class Hearer>
class NewsOf {
public:
    Subscription observe(Hearer hearer) const { return m_hearers->add(std::move(hearer)); }
    // `kind` is a member of the struct: tell(&Hearer::lost).
    template<class Function, class... Facts>
    void tell(Function Hearer::*kind, const Facts&... facts) const {
        m_hearers->forEach([&](const Hearer& hearer) {
            if (hearer.*kind)
                (hearer.*kind)(facts...);
        });
    }

private:
    QExplicitlySharedDataPointer<Listeners<Hearer>> m_hearers{new Listeners<Hearer>};
};
