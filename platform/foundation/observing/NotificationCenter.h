// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <QString>

#include <any>
#include <functional>

// News with a name. The constant of the name says what the object is, if there is one.
struct Notification {
    QString name;
    std::any object;
};

// Carries news from code that does not know who listens. Delivered at once, in order of registration, on the
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
