// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <optional>
#include <set>

// Names one timer of the tree. Windows of several applications may share an identity; windows of one
// application never do.
struct TimerReference {
    Identity application;
    // Absent for the application itself.
    std::optional<Identity> window;

    friend auto operator<=>(const TimerReference&, const TimerReference&) = default;
};
using TimerReferences = std::set<TimerReference>;

// Timers were deleted, with all that is known of them, or came back by undoing that. The object is a
// TimerReferences; an application includes its windows.
inline const QString kTicklogRemoveTimersNotification = QStringLiteral("kTicklogRemoveTimersNotification");
inline const QString kTicklogPutBackTimersNotification = QStringLiteral("kTicklogPutBackTimersNotification");
