// SPDX-License-Identifier: MIT
#pragma once

#include <QScreen>
#include <QWidget>

// The size that a window begins with: what is wanted, but no larger than its screen, whose size in the units of a
// window depends on the scale.
inline QSize firstSize(const QWidget& window, const QSize& wanted) {
    // What window managers put around a window.
    constexpr QSize kFrame(16, 48);
    return wanted.boundedTo(window.screen()->availableSize() - kFrame);
}
