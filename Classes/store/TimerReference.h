// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <optional>
#include <set>

// One timer of the tree. Windows of several applications may share an identity, those of one never do.
struct TimerReference {
    Identity application;
    // Absent for the application itself.
    std::optional<Identity> window;

    friend auto operator<=>(const TimerReference&, const TimerReference&) = default;
};
using TimerReferences = std::set<TimerReference>;

// Timers are deleted, with all that is known of them; or they have come back, by undoing it. The object is a
// TimerReferences; an application stands for its windows as well.
inline const QString kTicklogRemoveTimersNotification = QStringLiteral("kTicklogRemoveTimersNotification");
inline const QString kTicklogPutBackTimersNotification = QStringLiteral("kTicklogPutBackTimersNotification");
