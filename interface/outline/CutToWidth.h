// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A text that is to be shown in the middle of what was left out, for so many pixels: the ends of it that can be seen there at
// all, with a sign between them. Fonts measure all that they are given before anything is left out, at every painting.
QString cutToWidth(const QString& text, double width);
