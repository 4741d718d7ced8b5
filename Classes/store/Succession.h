// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <vector>

// A timer has taken another one in, or what was one identity are two: projects that have the former have the successor
// as well from now on. The object is Successions, in the order in which they came about.
inline const QString kTicklogSucceedNodeNotification = QStringLiteral("kTicklogSucceedNodeNotification");
struct Succession {
    Identity former;
    Identity successor;
};
using Successions = std::vector<Succession>;
