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

// Keeps controls and settings equal: stores what the user does at once, and shows any change of a setting at
// once. A setting of the wrong type is shown as the nearest sensible value, and replaced only when the user
// changes the control. The settings must outlive this object, and this object must outlive the use of the
// controls.
class SettingsBinding {
public:
    SettingsBinding(UserDefaults& defaults, NotificationCenter& notifications);
    SettingsBinding(const SettingsBinding&) = delete;
    SettingsBinding& operator=(const SettingsBinding&) = delete;

    void bind(QCheckBox& box, const QString& key);
    void bind(QSpinBox& box, const QString& key);
    // The integer of each choice is its data; a setting that equals none of them shows no choice.
    void bind(QComboBox& box, const QString& key);
    // Edits only the time of day of a date; its day stays.
    void bind(QTimeEdit& edit, const QString& key);
    // Stored when editing ends.
    void bind(QLineEdit& edit, const QString& key);
    // Calls `show` now and after every change of any setting.
    void observe(std::function<void()> show);

    UserDefaults& defaults() { return m_defaults; }

private:
    UserDefaults& m_defaults;
    // Receives the controls' signals.
    QObject m_receiver;
    std::vector<std::function<void()>> m_shows;
    Subscription m_changes;
};
