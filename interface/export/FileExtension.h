// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class Alerts;

// The path chosen in a panel, with `suffix` (".csv") at its end. The panel has asked only about the name as
// it was entered. If the name with the suffix is another existing file, asks the user here; absent if that
// file is to stay.
std::optional<QString> withExtension(Alerts& alerts, const QString& path, const QString& suffix);
