// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <optional>

class QFormLayout;
class SettingsBinding;

// Whether Ticklog starts at login, as the desktop says.
struct LoginItem {
    std::function<bool()> isEnabled;
    std::function<void(bool)> setEnabled;
};

// The preferences for idle time, for what is summed and copied, and for where Ticklog appears.
class GeneralTab : public QWidget {
    Q_OBJECT
public:
    // Without a `loginItem` there is no check box for the login. The settings must outlive the tab.
    GeneralTab(SettingsBinding& settings, const std::optional<LoginItem>& loginItem);

    // Asks the login item for its state again.
    void reload();

private:
    void addIdleness(QFormLayout& form, SettingsBinding& settings);
    void addAppearance(QFormLayout& form, SettingsBinding& settings);

    std::function<void()> m_reload;
};
