// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/PeriodicSave.h"

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpacerItem;
class SettingsBinding;
class WeekdaySelector;

#include <QWidget>

// Where the timers are kept, and when and how they are archived. What belongs to the scheduled archive alone is in a part
// of its own at the bottom, which goes while there is none.
class ArchiveTab : public QWidget {
    Q_OBJECT
public:
    // What the buttons do.
    struct Actions {
        std::function<void()> chooseDatabaseLocation;
        std::function<void()> restoreDefaultDatabaseLocation;
        std::function<void()> revealDatabase;
        // Has the user choose the folder of the archives.
        std::function<void()> setPeriodicSaveDirectory;
        std::function<void(const PeriodicSave::Segments&)> setPeriodicDaysOfWeek;
    };

    // The settings must outlive the tab.
    ArchiveTab(SettingsBinding& settings, Actions actions);

    WeekdaySelector& periodicDaysOfWeek() const { return *m_periodicDaysOfWeek; }

    // What goes while nothing is archived.
    QWidget& bottomView() const { return *m_bottomView; }

    // Makes room above the lower part for pages that are `height` high.
    void makeRoom(int height);

    void showDatabaseLocation(const QString& path, bool isDefault);

private:
    void makeDatabasePart(QFormLayout& form);
    void makeBottomView(SettingsBinding& settings);
    QPushButton* makeButton(const char* name, const QString& text, const std::function<void()>& action);
    void showWeekdays(UserDefaults& defaults);

    Actions m_actions;
    QLineEdit* m_pathDirectory;
    QPushButton* m_restore = nullptr;
    // Beside the upper part, as high as that is to be; gives way.
    QSpacerItem* m_room;
    QWidget* m_bottomView;
    WeekdaySelector* m_periodicDaysOfWeek;
    QLabel* m_weekdays;
};
