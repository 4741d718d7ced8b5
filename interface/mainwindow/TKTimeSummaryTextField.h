// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A text that acts as a button.
class TKTimeSummaryTextField : public QLabel {
    Q_OBJECT
public:
    explicit TKTimeSummaryTextField(QWidget* parent = nullptr)
        : QLabel(parent) {
        setCursor(Qt::PointingHandCursor);
    }

Q_SIGNALS:
    void pressed();

protected:
    void mousePressEvent(QMouseEvent* event) override {
        QLabel::mousePressEvent(event);
        Q_EMIT pressed();
    }
};
