// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <QVariant>

#include <cstring>
#include <functional>
#include <optional>

// The name of an observable property. Each is spelled once, as a constant beside the class that announces it.
struct ObservedKey {
    const char* name;

    friend bool operator==(ObservedKey a, ObservedKey b) {
        return a.name == b.name || std::strcmp(a.name, b.name) == 0;
    }
};

enum class ChangePhase { Will, Did };

// What an observer is told.
struct ObservedChange {
    ObservedKey key;
    ChangePhase phase;
    // The property before and after the change. Invalid unless the observer asked for values; `newValue` is invalid
    // in the Will phase.
    QVariant oldValue;
    QVariant newValue;
};

// Which announcements an observer gets, and with what.
struct ObservingOptions {
    // Told before the change too, not only after it.
    bool prior = false;
    // Told the old and the new value.
    bool values = false;
};

// An object whose named properties can be observed. Unobserved, it pays one pointer. Observers are told in the order
// in which they registered; while being told they may change the object, add and remove observers, or destroy the
// object. Main thread only. Observers' subscriptions may outlive it.
class Observable {
public:
    using Observer = std::function<void(const ObservedChange&)>;

    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    virtual ~Observable();

    // Calls `observer` for every change of `key` until the answer is destroyed.
    Subscription observe(ObservedKey key, Observer observer, ObservingOptions options = {});
    // Calls `observer` after every change of any key, without values: one registration where many objects are observed
    // for several keys each.
    Subscription observeEveryKey(Observer observer);

    // Announcements come in pairs, which may nest: the value before the outermost willChange is the old one.
    void willChange(ObservedKey key) {
        if (m_observers)
            announceWill(key);
    }
    void didChange(ObservedKey key) {
        if (m_observers)
            announceDid(key);
    }

    // The property's value now, for observers that want values. Invalid for a key the object does not have.
    virtual QVariant valueForKey(ObservedKey key) const;

private:
    struct Registration {
        // Null for every key.
        std::optional<ObservedKey> key;
        Observer observer;
        ObservingOptions options;
        QVariant oldValue;
        int depth = 0;

        bool isFor(ObservedKey changed) const { return !key || *key == changed; }
    };

    void announceWill(ObservedKey key);
    void announceDid(ObservedKey key);

    QExplicitlySharedDataPointer<Listeners<Registration>> m_observers;
};

// Announces a change for as long as it lives: will at construction, did at destruction.
class ChangeAnnouncement {
public:
    ChangeAnnouncement(Observable& object, ObservedKey key)
        : m_object(object)
        , m_key(key) {
        m_object.willChange(m_key);
    }
    ChangeAnnouncement(const ChangeAnnouncement&) = delete;
    ChangeAnnouncement& operator=(const ChangeAnnouncement&) = delete;
    ~ChangeAnnouncement() { m_object.didChange(m_key); }

private:
    Observable& m_object;
    ObservedKey m_key;
};
