// SPDX-License-Identifier: MIT
#include "interface/shell/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSteps = 32;

} // namespace

QColor Contrast::mixed(const QColor& ink, const QColor& ground, double part) {
    const auto mix = [part](float over, float under) { return float(part * over + (1 - part) * under); };
    const QColor exact = QColor::fromRgbF(mix(ink.redF(), ground.redF()), mix(ink.greenF(), ground.greenF()),
                                          mix(ink.blueF(), ground.blueF()));
    // As it is painted.
    return QColor::fromRgb(exact.rgb());
}

double Contrast::luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast::of(const QColor& ink, const QColor& ground) {
    const double one = luminance(ink) + 0.05;
    const double other = luminance(ground) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

QColor Contrast::over(const QColor& ink, const QColor& ground) {
    return mixed(ink, ground, ink.alphaF());
}

QColor Contrast::readable(const QColor& quiet, const QColor& strong, const QColor& ground, double contrast) {
    const QColor from = over(quiet, ground);
    const QColor to = over(strong, ground);
    for (int step = 0; step < kSteps; ++step) {
        const QColor color = mixed(to, from, double(step) / kSteps);
        if (of(color, ground) >= contrast)
            return color;
    }
    return to;
}

void Contrast::showLines(QPalette& palette) {
    // What is darker by as much as styles make it is still seen.
    constexpr int kDarker = 140;
    const QColor ground = palette.color(QPalette::Window);
    if (of(ground.darker(kDarker), ground) >= kOfLines)
        return;
    const QColor line = readable(ground, palette.color(QPalette::WindowText), ground, kOfMarks);
    palette.setColor(QPalette::Window, line.lighter(kDarker));
    palette.setColor(QPalette::Button, line);
}
