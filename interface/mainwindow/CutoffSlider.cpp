// SPDX-License-Identifier: MIT
#include "interface/mainwindow/CutoffSlider.h"

#include "interface/mainwindow/SumBarAccessibility.h"
#include "interface/shell/Contrast.h"
#include "interface/shell/SpokenItem.h"
#include "platform/foundation/text/DurationText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QStyleOptionSlider>

#include <algorithm>
#include <array>
#include <cmath>

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
    installSumBarAccessibility();
    setRange(0, int(kPlaces.size()) - 1);
    setPageStep(4);
    nameStep();
    connect(this, &QSlider::valueChanged, this, [this] {
        nameStep();
        if (hasFocus())
            speakItem(*this, timeInWords());
        Q_EMIT secondsChanged(seconds());
    });
}

void CutoffSlider::initStyleOption(QStyleOptionSlider* option) const {
    QSlider::initStyleOption(option);
    Contrast::showLines(option->palette);
}

void CutoffSlider::nameStep() {
    setAccessibleName(localized("At least") + u' ' + timeInWords());
}

QString CutoffSlider::timeInWords() const {
    const double time = seconds();
    const bool isWholeMinutes = time > 0 && std::fmod(time, kMinute) == 0;
    return durationInWords(time, !isWholeMinutes);
}

float CutoffSlider::seconds() const {
    return float(kPlaces[std::size_t(value())]);
}

float CutoffSlider::mostSeconds() {
    return float(kPlaces.back());
}

void CutoffSlider::setSeconds(float seconds) {
    const auto distance = [seconds](int place) { return std::abs(float(place) - seconds); };
    setValue(int(std::ranges::min_element(kPlaces, {}, distance) - kPlaces.begin()));
}
