// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QMouseEvent>

// The sum below the timers. A read-only field rather than a label, because it can be read aloud and copied
// from.
class SumOfTimesLabel : public QLineEdit {
    Q_OBJECT
public:
    explicit SumOfTimesLabel(QWidget* parent = nullptr)
        : QLineEdit(parent) {
        setReadOnly(true);
        setFrame(false);
        setAlignment(Qt::AlignRight);
    }

Q_SIGNALS:
    // It was clicked: the user wants the sum of everything.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            Q_EMIT clicked();
    }
};
