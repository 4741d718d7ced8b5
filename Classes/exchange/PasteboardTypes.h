// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <vector>

// The two private types that drags and the clipboard carry, as property lists. Bytes from outside are read as
// carefully as a file.
inline const QString kTimerPasteboardType = QStringLiteral("org.ticklog.standard.TKItem");
inline const QString kProjectPasteboardType = QStringLiteral("org.ticklog.standard.TKProject");

// The identities of timers, in the order of their rows.
QByteArray timerPasteboardData(const std::vector<Identity>& timers);
// Absent when the bytes are no list. Elements that are no identities are left out.
std::optional<std::vector<Identity>> timersFromPasteboard(const QByteArray& bytes);

// A row of the sidebar. The main item counts as row 0.
QByteArray projectPasteboardData(int row);
// Absent when the bytes hold no number that can be a row.
std::optional<int> projectRowFromPasteboard(const QByteArray& bytes);
