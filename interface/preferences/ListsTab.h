// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class SettingsBinding;

// The preferences for what lists of timers and projects show.
class ListsTab : public QWidget {
    Q_OBJECT
public:
    // The settings must outlive the tab.
    explicit ListsTab(SettingsBinding& settings);
};
