// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

// Contrasts as the guidelines for accessible content define them: 1 for equal colours, 21 for black on white.
namespace Contrast {

inline constexpr double kOfTexts = 4.5;
inline constexpr double kOfMarks = 3.0;
// What lines have that only part one thing from another.
inline constexpr double kOfLines = 1.5;

// As much of `ink` as `part` says, from 0 to 1; the rest of `ground`.
QColor mixed(const QColor& ink, const QColor& ground, double part);
// How bright a colour seems, from 0 to 1.
double luminance(const QColor& color);
// Both are opaque.
double of(const QColor& ink, const QColor& ground);
// `ink` over `ground`, as far as it covers it.
QColor over(const QColor& ink, const QColor& ground);
// The colour nearest to `quiet` on the way to `strong` that has at least this contrast on `ground`; `strong` if none has.
QColor readable(const QColor& quiet, const QColor& strong, const QColor& ground, double contrast = kOfTexts);

// Styles draw frames and grooves darker than the window, which is not seen where that is dark already. Makes a widget's
// own palette one by which they are seen; leaves it alone on light grounds.
void showLines(QPalette& palette);

} // namespace Contrast
