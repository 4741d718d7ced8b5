// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

// Says above the timers why nothing can be measured on this desktop, what troubles the account, and what to do about it. Not
// there while all is well.
class ObstacleBar : public QFrame {
    Q_OBJECT
public:
    explicit ObstacleBar(QWidget* parent = nullptr);

    // Hides itself for an empty text. Assistive programs read a new text out.
    void showObstacle(const QString& text);
    // Whether there is a button for "I know", which calls the function that was given for it.
    void offerAcknowledgement(bool isOffered);
    void setAcknowledged(std::function<void()> acknowledged) { m_acknowledged = std::move(acknowledged); }
    // Offers a button that calls `remedy`; none without one.
    void offerRemedy(std::function<void()> remedy);

private:
    QLabel* m_text;
    QPushButton* m_remedyButton;
    QPushButton* m_acknowledgeButton;
    std::function<void()> m_remedy;
    std::function<void()> m_acknowledged;
};
