// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

// Chooses below how many seconds rows are left out. Its places are times that people think in, close together where
// they are short.
class CutoffSlider : public QSlider {
    Q_OBJECT
public:
    explicit CutoffSlider(QWidget* parent = nullptr);

    // Seconds; 0 leaves nothing out.
    float seconds() const;

Q_SIGNALS:
    void secondsChanged(float seconds);
};
