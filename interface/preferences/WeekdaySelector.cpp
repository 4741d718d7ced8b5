// SPDX-License-Identifier: MIT
#include "interface/preferences/WeekdaySelector.h"

#include "interface/shell/PlainText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QToolButton>

WeekdaySelector::WeekdaySelector(QWidget* parent)
    : QWidget(parent) {
    auto* cells = new QHBoxLayout(this);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->setSpacing(0);
    const QLocale locale;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        // Qt counts Sunday as day 7.
        const int day = i == 0 ? 7 : int(i);
        auto* button = new QToolButton;
        button->setObjectName(QStringLiteral("weekday%1").arg(i));
        button->setText(locale.standaloneDayName(day, QLocale::ShortFormat));
        button->setToolTip(PlainText::toolTip(locale.standaloneDayName(day)));
        button->setAccessibleName(button->toolTip());
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::clicked, this, &WeekdaySelector::segmentsChosen);
        connect(button, &QToolButton::toggled, this, &WeekdaySelector::colour);
        cells->addWidget(button);
        m_buttons[i] = button;
    }
    // Without a policy of its own, the mnemonic of its label would lead nowhere.
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_buttons.front());
}

PeriodicSave::Segments WeekdaySelector::segments() const {
    PeriodicSave::Segments segments{};
    for (std::size_t i = 0; i < segments.size(); ++i)
        segments[i] = m_buttons[i]->isChecked();
    return segments;
}

void WeekdaySelector::setSegments(const PeriodicSave::Segments& segments) {
    for (std::size_t i = 0; i < segments.size(); ++i)
        m_buttons[i]->setChecked(segments[i]);
}

void WeekdaySelector::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colour();
}

void WeekdaySelector::colour() {
    for (QToolButton* button : m_buttons) {
        QPalette colours = palette();
        if (button->isChecked()) {
            colours.setBrush(QPalette::Button, colours.brush(QPalette::Highlight));
            colours.setBrush(QPalette::ButtonText, colours.brush(QPalette::HighlightedText));
        }
        button->setPalette(colours);
    }
}
