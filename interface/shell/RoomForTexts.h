// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

// Lets windows grow when the lines of their texts become more: because a text becomes longer, or the font larger. Layouts
// know how high they must be for their width, but no window asks them. Windows of a fixed height stay as they are.
class RoomForTexts : public QObject {
    Q_OBJECT
public:
    // For all windows of the program, while it lives.
    RoomForTexts();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
