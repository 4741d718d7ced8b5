// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/PlainText.h"

#include <QMouseEvent>

// A text that can be clicked like a button.
class TKTimeSummaryTextField : public PlainLabel {
    Q_OBJECT
public:
    explicit TKTimeSummaryTextField(QWidget* parent = nullptr)
        : PlainLabel(parent) {
        setCursor(Qt::PointingHandCursor);
    }

Q_SIGNALS:
    void pressed();

protected:
    void mousePressEvent(QMouseEvent* event) override {
        PlainLabel::mousePressEvent(event);
        if (event->button() == Qt::LeftButton)
            Q_EMIT pressed();
    }
};
