// SPDX-License-Identifier: MIT
#include "interface/preferences/ArchiveTab.h"

#include "Classes/common/Settings.h"
#include "interface/preferences/SettingsBinding.h"
#include "interface/preferences/WeekdaySelector.h"
#include "interface/shell/DividingLine.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTimeEdit>

namespace {

constexpr int kMargin = 18;
constexpr int kNarrowestFolder = 220;
constexpr int kBelowWeekdays = 2;
// With more weekdays than these, only short names have room.
constexpr int kMostLongWeekdays = 3;

} // namespace

ArchiveTab::ArchiveTab(SettingsBinding& settings, Actions actions)
    : m_actions(std::move(actions))
    , m_pathDirectory(new QLineEdit)
    , m_upperPart(new QHBoxLayout)
    , m_room(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding))
    , m_bottomView(new QWidget)
    , m_periodicDaysOfWeek(new WeekdaySelector)
    , m_weekdays(new PlainLabel) {
    setObjectName(QStringLiteral("Archive"));
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_upperPart->addItem(m_room);
    auto* rows = new QVBoxLayout;
    m_upperPart->addLayout(rows, 1);
    parts->addLayout(m_upperPart, 1);
    auto* form = new QFormLayout;
    makeDatabasePart(*form);
    rows->addLayout(form);
    rows->addStretch(1);
    rows->addWidget(dividingLine());
    auto* isOn = new QCheckBox(localized("&Archive and clear all timers by schedule"));
    isOn->setObjectName(QStringLiteral("saveTimerPeriodically"));
    settings.bind(*isOn, kSaveTimerPeriodically);
    rows->addWidget(isOn);
    auto* explanation = new PlainLabel(localized(
        "At the chosen time all timers are saved to a file named after the day, and start again from zero."));
    explanation->setWordWrap(true);
    explanation->setForegroundRole(QPalette::PlaceholderText);
    rows->addWidget(explanation);
    makeBottomView(settings);
    parts->addWidget(m_bottomView);
}

void ArchiveTab::makeRoom(int height) {
    // A fixed height, because the height that the lower part needs depends on the width of the window, and so
    // on other texts.
    m_room->changeSize(0, height - 2 * kMargin - layout()->spacing(), QSizePolicy::Minimum,
                       QSizePolicy::Expanding);
    m_upperPart->invalidate();
    layout()->invalidate();
}

QPushButton* ArchiveTab::makeButton(const char* name, const QString& text,
                                    const std::function<void()>& action) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, [action] { action(); });
    return button;
}

void ArchiveTab::makeDatabasePart(QFormLayout& form) {
    m_pathDirectory->setObjectName(QStringLiteral("pathDirectory"));
    m_pathDirectory->setReadOnly(true);
    form.addRow(localized("Data&base:"), m_pathDirectory);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(
        makeButton("chooseDatabaseDirectory", localized("&Choose…"), m_actions.chooseDatabaseLocation));
    m_restore = makeButton("restoreDefaultDatabaseLocation", localized("&Restore Default"),
                           m_actions.restoreDefaultDatabaseLocation);
    buttons->addWidget(m_restore);
    buttons->addWidget(
        makeButton("revealDatabase", localized("&Show in File Manager"), m_actions.revealDatabase));
    buttons->addStretch(1);
    form.addRow(QString(), buttons);
}

QLayout* ArchiveTab::makeWeekdays() {
    m_periodicDaysOfWeek->setObjectName(QStringLiteral("periodicDaysOfWeek"));
    m_periodicDaysOfWeek->setAccessibleName(localized("Weekdays of the archive"));
    connect(m_periodicDaysOfWeek, &WeekdaySelector::segmentsChosen, this,
            [this] { m_actions.setPeriodicDaysOfWeek(m_periodicDaysOfWeek->segments()); });
    m_weekdays->setObjectName(QStringLiteral("weekdaysOfTheArchive"));
    // Directly below the buttons, because it explains what they mean.
    auto* weekdays = new QVBoxLayout;
    weekdays->setSpacing(kBelowWeekdays);
    weekdays->addWidget(m_periodicDaysOfWeek);
    weekdays->addWidget(m_weekdays);
    return weekdays;
}

void ArchiveTab::makeBottomView(SettingsBinding& settings) {
    m_bottomView->setObjectName(QStringLiteral("bottomViewToResizeTo"));
    auto* time = new QTimeEdit;
    time->setObjectName(QStringLiteral("periodicSaveTime"));
    // Hours and minutes are enough.
    time->setDisplayFormat(QLocale().timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss")));
    auto* format = new QComboBox;
    format->setObjectName(QStringLiteral("periodicFormatType"));
    format->addItem(localized("CSV table"), 0);
    format->addItem(localized("Ticklog database"), 1);
    format->addItem(localized("CSV table and Ticklog database"), 2);
    auto* folder = new QLineEdit;
    folder->setObjectName(QStringLiteral("periodicSaveDirectory"));
    auto* form = new QFormLayout(m_bottomView);
    form->setContentsMargins(0, kMargin, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    auto* cells = new QHBoxLayout;
    cells->addWidget(folder, 1);
    cells->addWidget(
        makeButton("setPeriodicSaveDirectory", localized("C&hoose…"), m_actions.setPeriodicSaveDirectory));
    form->addRow(localized("&Time of day:"), time);
    auto* weekdaysLabel = new PlainLabel(localized("&Weekdays:"));
    weekdaysLabel->setBuddy(m_periodicDaysOfWeek);
    form->addRow(weekdaysLabel, makeWeekdays());
    form->addRow(localized("&Format:"), format);
    auto* folderLabel = new PlainLabel(localized("F&older:"));
    folderLabel->setBuddy(folder);
    form->addRow(folderLabel, cells);
    folder->setMinimumWidth(kNarrowestFolder);
    settings.bind(*time, kPeriodicSaveTime);
    settings.bind(*format, kPeriodicFormatType);
    settings.bind(*folder, kPeriodicSaveDirectory);
    settings.observe([this, &settings] { showWeekdays(settings.defaults()); });
}

// The setting's bits are in the reverse order of the buttons: this line says on which days archives are
// really made.
void ArchiveTab::showWeekdays(UserDefaults& defaults) {
    const auto weekdays = quint32(defaults.integerForKey(kPeriodicDaysOfWeek));
    const auto length =
        qPopulationCount(weekdays) > kMostLongWeekdays ? QLocale::ShortFormat : QLocale::LongFormat;
    QStringList names;
    for (int day = 0; day < 7; ++day)
        if (weekdays & (1U << day))
            names << QLocale().standaloneDayName(day == 0 ? 7 : day, length);
    m_weekdays->setText(names.isEmpty() ? localized("No day is chosen: nothing is archived.")
                                        : localized("Archived on: ") + names.join(QStringLiteral(", ")));
    m_weekdays->setToolTip(PlainText::toolTip(m_weekdays->text()));
    m_weekdays->setAccessibleDescription(m_weekdays->text());
}

void ArchiveTab::showDatabaseLocation(const QString& path, bool isDefault) {
    m_pathDirectory->setText(path);
    m_pathDirectory->setToolTip(PlainText::toolTip(path));
    m_pathDirectory->setAccessibleDescription(path);
    m_restore->setEnabled(!isDefault);
}
