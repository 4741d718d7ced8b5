// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QObject>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;
class QTimeEdit;

// Keeps controls and settings equal: what the user does is stored at once, and a setting that changes anywhere is shown at
// once. A setting of a wrong type shows as the control's nearest sensible value and is replaced only when the user
// changes it. The settings must outlive this, and this the controls' use.
class SettingsBinding {
public:
    SettingsBinding(UserDefaults& defaults, NotificationCenter& notifications);
    SettingsBinding(const SettingsBinding&) = delete;
    SettingsBinding& operator=(const SettingsBinding&) = delete;

    void bind(QCheckBox& box, const QString& key);
    void bind(QSpinBox& box, const QString& key);
    // Each choice carries its integer as data; a setting that is none of them shows no choice.
    void bind(QComboBox& box, const QString& key);
    // The time of day of a date; what day it is stays.
    void bind(QTimeEdit& edit, const QString& key);
    // Stored when editing ends.
    void bind(QLineEdit& edit, const QString& key);
    // Calls `show` now and after every change of any setting.
    void observe(std::function<void()> show);

    UserDefaults& defaults() { return m_defaults; }

private:
    UserDefaults& m_defaults;
    // What the controls' signals are received by.
    QObject m_receiver;
    std::vector<std::function<void()>> m_shows;
    Subscription m_changes;
};
