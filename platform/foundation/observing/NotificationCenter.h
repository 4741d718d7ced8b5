// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <QString>

#include <any>
#include <functional>

// A piece of news by name. What the object is, if there is one, stands beside the constant of the name.
struct Notification {
    QString name;
    std::any object;
};

// Carries news upward, from code that does not know who listens. Delivered at once, in order of registration, on the
// main thread. Outlives those who post; subscriptions may outlive it.
class NotificationCenter {
public:
    using Observer = std::function<void(const Notification&)>;

    NotificationCenter();
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;
    ~NotificationCenter();

    Subscription observe(const QString& name, Observer observer);
    void post(const QString& name, std::any object = {});

private:
    struct Registration {
        QString name;
        Observer observer;
    };

    QExplicitlySharedDataPointer<Listeners<Registration>> m_observers;
};
