// SPDX-License-Identifier: MIT
#include "interface/preferences/SettingsBinding.h"

#include "platform/foundation/time/LocalTime.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimeEdit>

using namespace std::chrono_literals;

SettingsBinding::SettingsBinding(UserDefaults& defaults, NotificationCenter& notifications)
    : m_defaults(defaults) {
    m_changes = notifications.observe(kUserDefaultsDidChangeNotification, [this](const Notification&) {
        for (const auto& show : m_shows)
            show();
    });
}

void SettingsBinding::observe(std::function<void()> show) {
    show();
    m_shows.push_back(std::move(show));
}

void SettingsBinding::bind(QCheckBox& box, const QString& key) {
    observe([this, &box, key] {
        const QSignalBlocker quiet(box);
        box.setChecked(m_defaults.boolForKey(key));
    });
    QObject::connect(&box, &QCheckBox::toggled, &m_receiver,
                     [this, key](bool isChecked) { m_defaults.setObject(key, isChecked); });
}

void SettingsBinding::bind(QSpinBox& box, const QString& key) {
    observe([this, &box, key] {
        const QSignalBlocker quiet(box);
        const std::int64_t value = m_defaults.integerForKey(key);
        box.setValue(int(std::clamp<std::int64_t>(value, box.minimum(), box.maximum())));
    });
    QObject::connect(&box, &QSpinBox::valueChanged, &m_receiver,
                     [this, key](int value) { m_defaults.setObject(key, value); });
}

void SettingsBinding::bind(QComboBox& box, const QString& key) {
    observe([this, &box, key] {
        const QSignalBlocker quiet(box);
        box.setCurrentIndex(box.findData(qlonglong(m_defaults.integerForKey(key))));
    });
    QObject::connect(&box, &QComboBox::activated, &m_receiver, [this, &box, key](int choice) {
        m_defaults.setObject(key, box.itemData(choice).toInt());
    });
}

void SettingsBinding::bind(QTimeEdit& edit, const QString& key) {
    observe([this, &edit, key] {
        const QSignalBlocker quiet(edit);
        if (const auto date = m_defaults.object(key).asDate())
            edit.setTime(localTime(*date).time());
    });
    QObject::connect(&edit, &QTimeEdit::timeChanged, &m_receiver, [this, key](QTime time) {
        const QDate anyDay(2001, 1, 1);
        const auto date = m_defaults.object(key).asDate();
        m_defaults.setObject(key, dateOf(QDateTime(date ? localTime(*date).date() : anyDay, time)));
    });
}

void SettingsBinding::bind(QLineEdit& edit, const QString& key) {
    observe([this, &edit, key] {
        const QString text = m_defaults.object(key).toString();
        // Another setting may change while the user types: keep the typed text.
        if (!edit.isModified() && edit.text() != text)
            edit.setText(text);
    });
    QObject::connect(&edit, &QLineEdit::editingFinished, &m_receiver, [this, &edit, key] {
        if (!edit.isModified())
            return;
        edit.setModified(false);
        m_defaults.setObject(key, edit.text());
    });
}
