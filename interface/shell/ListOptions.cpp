// SPDX-License-Identifier: MIT
#include "interface/shell/ListOptions.h"

#include "Classes/common/Settings.h"

ListOptions::ListOptions(const UserDefaults& defaults, NotificationCenter& notifications)
    : m_choices(read(defaults)) {
    m_changes = notifications.observe(kUserDefaultsDidChangeNotification, [this, &defaults](const auto&) {
        const Choices choices = read(defaults);
        if (std::exchange(m_choices, choices) != choices)
            Q_EMIT changed();
    });
}

ListOptions::Choices ListOptions::read(const UserDefaults& defaults) {
    return {.hasShortTitles = defaults.boolForKey(kListShortTitles),
            .hasProjectTimes = defaults.boolForKey(kListProjectTimes),
            .hasIcons = defaults.boolForKey(kListIcons),
            .hasShareBars = defaults.boolForKey(kListShareBars)};
}
