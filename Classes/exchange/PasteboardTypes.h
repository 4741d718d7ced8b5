// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <vector>

// The two private types that drags and the clipboard carry, as property lists. What comes from outside is read as
// carefully as a file.
inline const QString kTimerPasteboardType = QStringLiteral("org.ticklog.standard.TKItem");
inline const QString kProjectPasteboardType = QStringLiteral("org.ticklog.standard.TKProject");

// The identities of timers, in the order of their rows.
QByteArray timerPasteboardData(const std::vector<Identity>& timers);
// Absent when the bytes are no list. Elements that are no identities are left out.
std::optional<std::vector<Identity>> timersFromPasteboard(const QByteArray& bytes);

// A row of the sidebar, which counts the main item.
QByteArray projectPasteboardData(int row);
// Absent when the bytes are no number that can be a row.
std::optional<int> projectRowFromPasteboard(const QByteArray& bytes);
