// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class QCheckBox;
class QPushButton;

// Says at the very first start, in four sentences, what is recorded and where it stays, and offers to begin.
class WelcomePage : public QScrollArea {
    Q_OBJECT
public:
    explicit WelcomePage(QWidget* parent = nullptr);

    QCheckBox& loginBox() const { return *m_loginBox; }
    QPushButton& startButton() const { return *m_startButton; }

    // All that it says.
    static QString text();

Q_SIGNALS:
    void startWanted();
    void titlesWanted();
    void endWanted();

private:
    QWidget* makeButtons();

    QCheckBox* m_loginBox;
    QPushButton* m_startButton;
};
