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
    static float mostSeconds();
    // To the nearest step.
    void setSeconds(float seconds);
    // "5 minutes": what the step means to people. It is part of the accessible name, too.
    QString timeInWords() const;

Q_SIGNALS:
    void secondsChanged(float seconds);

protected:
    void initStyleOption(QStyleOptionSlider* option) const override;

private:
    void nameStep();
};
