// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/PeriodicSave.h"

#include <QWidget>

class QToolButton;

// Seven segments side by side, each of which can be on, named after the weekdays from Sunday.
class WeekdaySelector : public QWidget {
    Q_OBJECT
public:
    explicit WeekdaySelector(QWidget* parent = nullptr);

    PeriodicSave::Segments segments() const;
    // Is no choice of the user's.
    void setSegments(const PeriodicSave::Segments& segments);

Q_SIGNALS:
    // The user has chosen.
    void segmentsChosen();

protected:
    void changeEvent(QEvent* event) override;

private:
    // What is on stands out whatever the theme.
    void colour();

    std::array<QToolButton*, std::tuple_size_v<PeriodicSave::Segments>> m_buttons{};
};
