// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <optional>

class QFormLayout;
class SettingsBinding;

// Whether Ticklog starts when the user logs in, as the desktop knows it.
struct LoginItem {
    std::function<bool()> isEnabled;
    std::function<void(bool)> setEnabled;
};

// Idleness, what is summed and copied, and where Ticklog shows itself.
class GeneralTab : public QWidget {
    Q_OBJECT
public:
    // There is no check box for the login without a `loginItem`. The settings must outlive the tab.
    GeneralTab(SettingsBinding& settings, const std::optional<LoginItem>& loginItem);

    // Asks the login item again.
    void reload();

private:
    void addIdleness(QFormLayout& form, SettingsBinding& settings);
    void addAppearance(QFormLayout& form, SettingsBinding& settings);

    std::function<void()> m_reload;
};
