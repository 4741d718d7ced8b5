// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

// The file that Flatpak puts into the root folder of a sandbox.
inline const QString kFlatpakNote = QStringLiteral("/.flatpak-info");

// Whether this program runs in Flatpak's sandbox. The process numbers of windows mean nothing there: a
// sandbox numbers its own processes, and those of windows come from the machine or from another sandbox.
bool isInFlatpak();
// The executable of a process of this machine, as a full path; empty if it cannot be found out.
QString executableOfProcess(std::int64_t processIdentifier);
