// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"

#include <QVariant>

#include <cstring>
#include <functional>
#include <optional>

// The name of an observable property. Each is written only once, as a constant beside the class that
// announces it.
struct ObservedKey {
    const char* name;

    friend bool operator==(ObservedKey a, ObservedKey b) {
        return a.name == b.name || std::strcmp(a.name, b.name) == 0;
    }
};

enum class ChangePhase { Will, Did };

// What an observer gets.
struct ObservedChange {
    ObservedKey key;
    ChangePhase phase;
    // The property before and after the change. Invalid unless the observer asked for values; `newValue` is
    // also invalid in the Will phase.
    QVariant oldValue;
    QVariant newValue;
};

// Which announcements an observer gets, and with what.
struct ObservingOptions {
    // Also called before the change.
    bool prior = false;
    // Gets the old and the new value.
    bool values = false;
};

// An object whose named properties can be observed. Without observers it costs one pointer. Observers are
// called in the order of registration. While being called, they may change the object, add and remove
// observers, or destroy the object. Main thread only. Subscriptions may outlive it.
class Observable {
public:
    using Observer = std::function<void(const ObservedChange&)>;

    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    virtual ~Observable();

    // Calls `observer` for every change of `key` for as long as the subscription lives.
    Subscription observe(ObservedKey key, Observer observer, ObservingOptions options = {});
    // Calls `observer` after every change of any key, without values: one registration is enough where many
    // objects are observed for several keys.
    Subscription observeEveryKey(Observer observer);

    // Announce a change, in pairs that may nest: the old value is the one before the outermost willChange().
    void willChange(ObservedKey key) {
        if (m_observers)
            announceWill(key);
    }
    void didChange(ObservedKey key) {
        if (m_observers)
            announceDid(key);
    }

    // The property's present value, for observers that want values. Invalid for a key that the object does
    // not have.
    virtual QVariant valueForKey(ObservedKey key) const;

private:
    struct Registration {
        // Absent: every key.
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

// Announces a change: willChange() at construction, didChange() at destruction.
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
