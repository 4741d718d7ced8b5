// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <optional>
#include <vector>

// A timer has taken another one in, or one identity was split into two: from now on, projects that have the
// former have the successor too. The object is Successions, in the order in which they happened.
inline const QString kTicklogSucceedNodeNotification = QStringLiteral("kTicklogSucceedNodeNotification");
struct Succession {
    Identity former;
    Identity successor;
    // Whose window took in another of its windows. Absent where an identity was split.
    std::optional<Identity> application = std::nullopt;
};
using Successions = std::vector<Succession>;
