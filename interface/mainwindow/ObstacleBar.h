// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;

// Says above the timers why nothing can be measured on this desktop, and what to do about it. Not there while all is well.
class ObstacleBar : public QFrame {
    Q_OBJECT
public:
    explicit ObstacleBar(QWidget* parent = nullptr);

    // Hides itself for an empty text. Assistive programs read a new text out.
    void showObstacle(const QString& text);

private:
    QLabel* m_text;
};
