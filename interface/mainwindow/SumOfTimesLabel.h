// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/PlainText.h"

#include <QAccessible>

#include <functional>

// The sum below the timers. People can select and copy it. It announces nothing while it changes, since nobody wants to
// hear every second; who comes to it hears it with its kind, which is the accessible name, and it stands still for who
// selects it or listens to it.
class SumOfTimesLabel : public PlainLabel {
    Q_OBJECT
public:
    // `isHeard` answers whether assistive programs listen to this program at all.
    explicit SumOfTimesLabel(std::function<bool()> isHeard = &QAccessible::isActive);

    // At once or, if it stands still, as soon as it may change.
    void showTime(const QString& time);

Q_SIGNALS:
    // It was clicked: the user wants the sum of everything.
    void clicked();

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool standsStill() const;

    std::function<bool()> m_isHeard;
    QString m_time;
};
