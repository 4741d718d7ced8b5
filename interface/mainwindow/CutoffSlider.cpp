// SPDX-License-Identifier: MIT
#include "interface/mainwindow/CutoffSlider.h"

#include <array>

namespace {

constexpr int kMinute = 60;
constexpr int kHour = 60 * kMinute;
// Seconds.
constexpr std::array kPlaces = {0,
                                5,
                                10,
                                15,
                                20,
                                30,
                                45,
                                kMinute,
                                90,
                                2 * kMinute,
                                3 * kMinute,
                                5 * kMinute,
                                7 * kMinute,
                                10 * kMinute,
                                15 * kMinute,
                                20 * kMinute,
                                30 * kMinute,
                                45 * kMinute,
                                kHour,
                                90 * kMinute,
                                2 * kHour,
                                3 * kHour,
                                4 * kHour,
                                6 * kHour,
                                8 * kHour};

} // namespace

CutoffSlider::CutoffSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    setRange(0, int(kPlaces.size()) - 1);
    setPageStep(4);
    connect(this, &QSlider::valueChanged, this, [this] { Q_EMIT secondsChanged(seconds()); });
}

float CutoffSlider::seconds() const {
    return float(kPlaces[std::size_t(value())]);
}
