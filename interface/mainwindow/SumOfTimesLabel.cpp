// SPDX-License-Identifier: MIT
#include "interface/mainwindow/SumOfTimesLabel.h"

#include "interface/mainwindow/SumBarAccessibility.h"

#include <QKeyEvent>

SumOfTimesLabel::SumOfTimesLabel(std::function<bool()> isHeard)
    : m_isHeard(std::move(isHeard)) {
    installSumBarAccessibility();
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

bool SumOfTimesLabel::standsStill() const {
    return hasSelectedText() || (hasFocus() && m_isHeard());
}

void SumOfTimesLabel::showTime(const QString& time) {
    m_time = time;
    if (!standsStill() || text().isEmpty())
        setText(time);
}

bool SumOfTimesLabel::event(QEvent* event) {
    // Otherwise the keys would copy or select rows.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::SelectAll) ||
            (key->matches(QKeySequence::Copy) && hasSelectedText())) {
            event->accept();
            return true;
        }
    }
    return PlainLabel::event(event);
}

void SumOfTimesLabel::focusOutEvent(QFocusEvent* event) {
    PlainLabel::focusOutEvent(event);
    showTime(m_time);
}

void SumOfTimesLabel::mouseReleaseEvent(QMouseEvent* event) {
    PlainLabel::mouseReleaseEvent(event);
    // Who has pulled over it selects.
    if (event->button() == Qt::LeftButton && !hasSelectedText())
        Q_EMIT clicked();
}
