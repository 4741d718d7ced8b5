// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class PlainLabel;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class SettingsBinding;

// The preferences for how long the history is kept, when its days begin, what to ask of who comes back, and what to forget.
class HistoryTab : public QWidget {
    Q_OBJECT
public:
    struct Actions {
        // Asks whether the history is really to be kept for so many days: a shorter time deletes older days.
        std::function<bool(std::int64_t days)> mayKeepFor;
        std::function<void()> forget;
        // Why there is no history; empty if there is one.
        std::function<QString()> obstacle;
    };

    // The settings outlive the tab.
    HistoryTab(SettingsBinding& settings, Actions actions);

    // Shows the obstacle anew.
    void reload();

private:
    void addKeeping(QFormLayout& form, SettingsBinding& settings);
    void addAsking(QFormLayout& form, SettingsBinding& settings);
    void offerAsking();
    void showDays(std::int64_t days);

    Actions m_actions;
    QComboBox* m_days;
    QLabel* m_obstacle;
    QCheckBox* m_ask;
    QComboBox* m_askLength;
    PlainLabel* m_askLengthLabel;
    QPushButton* m_forget;
};
