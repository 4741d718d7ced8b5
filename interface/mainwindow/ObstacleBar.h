// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

// A bar above the timers. It says why nothing can be measured on this desktop, what troubles the account, and
// what to do about it. Hidden while all is well.
class ObstacleBar : public QFrame {
    Q_OBJECT
public:
    explicit ObstacleBar(QWidget* parent = nullptr);

    // Hides the bar for an empty text. Assistive programs read a new text aloud.
    void showObstacle(const QString& text);
    // Show or hide a button, which is signalled when it is pressed.
    void offerAcknowledgement(bool isOffered);
    void offerRemedy(bool isOffered);

Q_SIGNALS:
    // The user knows of the trouble.
    void acknowledged();
    // The user wants to do something about the obstacle.
    void remedyWanted();

private:
    QLabel* m_text;
    QPushButton* m_remedyButton;
    QPushButton* m_acknowledgeButton;
};
