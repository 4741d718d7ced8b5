// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class Alerts;

// What was chosen in a panel, with `suffix` (".csv") at its end. The panel has asked about the name as it was entered; where
// the extension leads to another file that is there, the user is asked here, and the answer is absent if it is to stay.
std::optional<QString> withExtension(Alerts& alerts, const QString& path, const QString& suffix);
