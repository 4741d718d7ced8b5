// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QObject>

// What the user wants to see in lists of timers and projects. Main thread only.
class ListOptions : public QObject {
    Q_OBJECT
public:
    // Both outlive it.
    ListOptions(const UserDefaults& defaults, NotificationCenter& notifications);

    // A window's title without its program's name at the end.
    bool hasShortTitles() const { return m_choices.hasShortTitles; }
    // The times of projects in the sidebar, and a row for what belongs to none.
    bool hasProjectTimes() const { return m_choices.hasProjectTimes; }
    bool hasIcons() const { return m_choices.hasIcons; }
    // A bar behind each time, as long as its share.
    bool hasShareBars() const { return m_choices.hasShareBars; }

Q_SIGNALS:
    void changed();

private:
    struct Choices {
        bool hasShortTitles;
        bool hasProjectTimes;
        bool hasIcons;
        bool hasShareBars;

        bool operator==(const Choices&) const = default;
    };

    static Choices read(const UserDefaults& defaults);

    Choices m_choices;
    Subscription m_changes;
};
