// SPDX-License-Identifier: MIT
#pragma once

class QDir;

// The window's history in all its states, and the time sheet.
void drawHistoryPictures(const QDir& folder);
