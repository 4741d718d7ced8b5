// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <optional>
#include <set>
#include <vector>

// Names one timer of the tree. Windows of several applications may share an identity; windows of one
// application never do.
struct TimerReference {
    Identity application;
    // Absent for the application itself.
    std::optional<Identity> window;

    friend auto operator<=>(const TimerReference&, const TimerReference&) = default;
};
using TimerReferences = std::set<TimerReference>;

// Timers were frozen, or that was undone: each goes on under another identity, and so does what is known of
// its past. An application takes its windows along. The object is a TimerMoves, in the order in which they
// happened.
inline const QString kTicklogMoveTimersNotification = QStringLiteral("kTicklogMoveTimersNotification");
struct TimerMove {
    TimerReference from;
    TimerReference to;
};
using TimerMoves = std::vector<TimerMove>;

// Timers were deleted, with all that is known of them, or came back by undoing that. The object is a
// TimerReferences; an application includes its windows.
inline const QString kTicklogRemoveTimersNotification = QStringLiteral("kTicklogRemoveTimersNotification");
inline const QString kTicklogPutBackTimersNotification = QStringLiteral("kTicklogPutBackTimersNotification");
