// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class SettingsBinding;

// How long the history is kept, when a day of it begins, and what is to be forgotten.
class HistoryTab : public QWidget {
    Q_OBJECT
public:
    struct Actions {
        // Whether it is to be kept for so many days: the user may think better of it.
        std::function<bool(std::int64_t days)> mayKeepFor;
        std::function<void()> forget;
        // Why there is no history; empty where there is one.
        std::function<QString()> obstacle;
    };

    // The settings outlive the tab.
    HistoryTab(SettingsBinding& settings, Actions actions);

    // Says anew what stands in the way.
    void reload();

private:
    void addKeeping(QFormLayout& form, SettingsBinding& settings);
    void showDays(std::int64_t days);

    Actions m_actions;
    QComboBox* m_days;
    QLabel* m_obstacle;
    QPushButton* m_forget;
};
