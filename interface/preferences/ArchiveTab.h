// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/PeriodicSave.h"

class QFormLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpacerItem;
class SettingsBinding;
class WeekdaySelector;

#include <QWidget>

// The preferences for where the timers are kept, and when and how they are archived. The settings of the
// scheduled archive are in a part at the bottom, which is hidden while there is none.
class ArchiveTab : public QWidget {
    Q_OBJECT
public:
    // What the buttons call.
    struct Actions {
        std::function<void()> chooseDatabaseLocation;
        std::function<void()> restoreDefaultDatabaseLocation;
        std::function<void()> revealDatabase;
        // Lets the user choose the folder of the archives.
        std::function<void()> setPeriodicSaveDirectory;
        std::function<void(const PeriodicSave::Segments&)> setPeriodicDaysOfWeek;
    };

    // The settings must outlive the tab.
    ArchiveTab(SettingsBinding& settings, Actions actions);

    WeekdaySelector& periodicDaysOfWeek() const { return *m_periodicDaysOfWeek; }

    // The part that is hidden while nothing is archived.
    QWidget& bottomView() const { return *m_bottomView; }

    // Leaves a gap above the lower part, so that pages of this `height` fit.
    void makeRoom(int height);

    void showDatabaseLocation(const QString& path, bool isDefault);

private:
    void makeDatabasePart(QFormLayout& form);
    QLayout* makeWeekdays();
    void makeBottomView(SettingsBinding& settings);
    QPushButton* makeButton(const char* name, const QString& text, const std::function<void()>& action);
    void showWeekdays(UserDefaults& defaults);

    Actions m_actions;
    QLineEdit* m_pathDirectory;
    QPushButton* m_restore = nullptr;
    QHBoxLayout* m_upperPart;
    // A spacer in the upper part that gives it its height; it may shrink.
    QSpacerItem* m_room;
    QWidget* m_bottomView;
    WeekdaySelector* m_periodicDaysOfWeek;
    QLabel* m_weekdays;
};
