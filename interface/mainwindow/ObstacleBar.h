// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>

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
    // Shows or hides a button "I know", which calls the function given to setAcknowledged().
    void offerAcknowledgement(bool isOffered);
    void setAcknowledged(std::function<void()> acknowledged) { m_acknowledged = std::move(acknowledged); }
    // Shows a button that calls `remedy`; hides it for an empty function.
    void offerRemedy(std::function<void()> remedy);

private:
    QLabel* m_text;
    QPushButton* m_remedyButton;
    QPushButton* m_acknowledgeButton;
    std::function<void()> m_remedy;
    std::function<void()> m_acknowledged;
};
