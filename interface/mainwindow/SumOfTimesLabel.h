// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QMouseEvent>

// The sum below the timers: a field that cannot be edited, because unlike a label it can be read out and copied from.
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
    // It was clicked at: the sum of everything is wanted.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLineEdit::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            Q_EMIT clicked();
    }
};
