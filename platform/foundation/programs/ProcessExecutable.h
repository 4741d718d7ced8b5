// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

// What Flatpak leaves in the root folder of a sandbox.
inline const QString kFlatpakNote = QStringLiteral("/.flatpak-info");

// Whether this program runs in Flatpak's sandbox. Process numbers that windows tell mean nothing there: a sandbox numbers its
// processes itself, and theirs are those of the machine, or of another sandbox.
bool isInFlatpak();
// The executable of a process of this machine, as a full path; empty when it cannot be told.
QString executableOfProcess(std::int64_t processIdentifier);
