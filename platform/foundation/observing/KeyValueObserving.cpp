// SPDX-License-Identifier: MIT
#include "platform/foundation/observing/KeyValueObserving.h"

Observable::~Observable() {
    if (m_observers)
        m_observers->removeAll();
}

Subscription Observable::observe(ObservedKey key, Observer observer, ObservingOptions options) {
    if (!m_observers)
        m_observers = new Listeners<Registration>;
    return m_observers->add({key, std::move(observer), options, {}});
}

Subscription Observable::observeEveryKey(Observer observer) {
    if (!m_observers)
        m_observers = new Listeners<Registration>;
    return m_observers->add({{}, std::move(observer), {}, {}});
}

QVariant Observable::valueForKey(ObservedKey) const {
    return {};
}

void Observable::announceWill(ObservedKey key) {
    m_observers->forEach([&](Registration& registration) {
        if (!registration.isFor(key))
            return;
        if (registration.depth++ == 0 && registration.options.values)
            registration.oldValue = valueForKey(key);
        if (registration.options.prior)
            registration.observer({key, ChangePhase::Will, registration.oldValue, {}});
    });
}

void Observable::announceDid(ObservedKey key) {
    m_observers->forEach([&](Registration& registration) {
        if (!registration.isFor(key))
            return;
        ObservedChange change{key, ChangePhase::Did, {}, {}};
        if (registration.options.values) {
            change.oldValue = registration.oldValue;
            change.newValue = valueForKey(key);
        }
        // The observer was registered in the middle of a change: it is told the end, without a beginning.
        if (registration.depth > 0 && --registration.depth == 0)
            registration.oldValue.clear();
        registration.observer(change);
    });
}
