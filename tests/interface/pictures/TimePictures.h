// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

// Draws the pictures of the history: days, weeks, months and years.
void drawTimePictures(const QDir& folder);
