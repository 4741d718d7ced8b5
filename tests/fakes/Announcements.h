// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/KeyValueObserving.h"

#include <QStringList>

#include <initializer_list>
#include <string>
#include <vector>

// Text as tests compare it.
inline std::string str(const QString& text) {
    return text.toStdString();
}

// Writes down what an object announces: "will name, did name".
class Announcements {
public:
    Announcements() = default;

    Announcements(Observable& object, std::initializer_list<ObservedKey> keys) { watch(object, keys); }

    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    void watch(Observable& object, std::initializer_list<ObservedKey> keys) {
        for (const ObservedKey key : keys)
            m_subscriptions.push_back(object.observe(key,
                                                     [this](const ObservedChange& change) {
                                                         m_told << (change.phase == ChangePhase::Will
                                                                        ? QLatin1String("will ")
                                                                        : QLatin1String("did ")) +
                                                                       QLatin1String(change.key.name);
                                                     },
                                                     {.prior = true}));
    }

    // Adds a line of the test's own.
    void note(const QString& line) { m_told << line; }

    std::string told() const { return m_told.join(QStringLiteral(", ")).toStdString(); }

    qsizetype count() const { return m_told.size(); }

private:
    QStringList m_told;
    std::vector<Subscription> m_subscriptions;
};
