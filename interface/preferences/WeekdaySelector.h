// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/PeriodicSave.h"

#include <QWidget>

class QToolButton;

// Seven buttons side by side, one for each weekday from Sunday, which can each be on or off.
class WeekdaySelector : public QWidget {
    Q_OBJECT
public:
    explicit WeekdaySelector(QWidget* parent = nullptr);

    PeriodicSave::Segments segments() const;
    // Does not count as a choice of the user: emits no signal.
    void setSegments(const PeriodicSave::Segments& segments);

Q_SIGNALS:
    // The user has changed a button.
    void segmentsChosen();

protected:
    void changeEvent(QEvent* event) override;

private:
    // Colours the buttons so that those that are on stand out in every theme.
    void colour();

    std::array<QToolButton*, std::tuple_size_v<PeriodicSave::Segments>> m_buttons{};
};
