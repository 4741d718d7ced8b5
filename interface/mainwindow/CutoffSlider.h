// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

// A slider that sets the cut-off: rows with less time are hidden. Its steps are round times, closer together
// where they are short.
class CutoffSlider : public QSlider {
    Q_OBJECT
public:
    explicit CutoffSlider(QWidget* parent = nullptr);

    // Seconds; 0 hides nothing.
    float seconds() const;

Q_SIGNALS:
    void secondsChanged(float seconds);
};
