// SPDX-License-Identifier: MIT
#include "platform/foundation/observing/NotificationCenter.h"

NotificationCenter::NotificationCenter()
    : m_observers(new Listeners<Registration>) {}

NotificationCenter::~NotificationCenter() {
    m_observers->removeAll();
}

Subscription NotificationCenter::observe(const QString& name, Observer observer) {
    return m_observers->add({name, std::move(observer)});
}

void NotificationCenter::post(const QString& name, std::any object) {
    const Notification notification{name, std::move(object)};
    m_observers->forEach([&](const Registration& registration) {
        if (registration.name == notification.name)
            registration.observer(notification);
    });
}
