// SPDX-License-Identifier: MIT
#include "interface/preferences/GeneralTab.h"

#include "Classes/common/Settings.h"
#include "interface/preferences/SettingsBinding.h"
#include "interface/shell/Images.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

// One day.
constexpr int kMostMinutes = 1440;
constexpr int kMargin = 18;
constexpr int kBetweenSubjects = 10;

// Where Ticklog appears. At least one of the two is always set, because it must be reachable.
struct Presence {
    int appType;
    bool showsMenuItem;
    const char* image;
    const char* text;
};

constexpr Presence kPresences[] = {
    {1, true, "Display-Both", QT_TRANSLATE_NOOP("Ticklog", "Task bar and system tray")},
    {1, false, "Display-Dock", QT_TRANSLATE_NOOP("Ticklog", "Task bar")},
    {0, true, "Display-Menubar", QT_TRANSLATE_NOOP("Ticklog", "System tray")}};

QCheckBox* checkBox(const char* name, const QString& text) {
    auto* box = new QCheckBox(text);
    box->setObjectName(QLatin1String(name));
    return box;
}

void addAir(QFormLayout& form) {
    form.addItem(new QSpacerItem(0, kBetweenSubjects, QSizePolicy::Minimum, QSizePolicy::Fixed));
}

} // namespace

GeneralTab::GeneralTab(SettingsBinding& settings, const std::optional<LoginItem>& loginItem) {
    setObjectName(QStringLiteral("General"));
    auto* form = new QFormLayout(this);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    addIdleness(*form, settings);
    addAir(*form);
    auto* idle = checkBox("includeIdleInSumofTimes", localized("Include &idle time"));
    auto* self = checkBox("includeSelfInSumofTimes", localized("Include time spent in &Ticklog"));
    auto* seconds = checkBox("includeSecondsWhenCopyingTime", localized("Include &seconds"));
    form->addRow(new PlainLabel(localized("Total:")), idle);
    form->addRow(QString(), self);
    addAir(*form);
    form->addRow(new PlainLabel(localized("Copied times:")), seconds);
    settings.bind(*idle, kIncludeIdleInSumofTimes);
    settings.bind(*self, kIncludeSelfInSumofTimes);
    settings.bind(*seconds, kIncludeSecondsWhenCopyingTime);
    idle->setAccessibleName(localized("Include idle time in the total"));
    self->setAccessibleName(localized("Include time spent in Ticklog in the total"));
    seconds->setAccessibleName(localized("Include seconds in copied times"));
    addAir(*form);
    addAppearance(*form, settings);
    if (!loginItem)
        return;
    addAir(*form);
    auto* login = checkBox("loginItemCheckbox", localized("Start Ticklog when I &log in"));
    form->addRow(QString(), login);
    m_reload = [login, isEnabled = loginItem->isEnabled] {
        const QSignalBlocker quiet(login);
        login->setChecked(isEnabled());
    };
    m_reload();
    connect(login, &QCheckBox::toggled, this, [this, setEnabled = loginItem->setEnabled](bool isWanted) {
        setEnabled(isWanted);
        // The desktop may have refused: shows what it says.
        m_reload();
    });
}

void GeneralTab::reload() {
    if (m_reload)
        m_reload();
}

void GeneralTab::addIdleness(QFormLayout& form, SettingsBinding& settings) {
    auto* detection = checkBox("enableIdleDetection", localized("&Count time without input as idle"));
    auto* minutes = new QSpinBox;
    minutes->setObjectName(QStringLiteral("minutesUntilIdle"));
    minutes->setRange(1, kMostMinutes);
    minutes->setSuffix(localized(" min"));
    minutes->setAccessibleName(localized("Minutes without input until time counts as idle"));
    // Stores a number only when it has been typed completely.
    minutes->setKeyboardTracking(false);
    form.addRow(new PlainLabel(localized("Idle time:")), detection);
    auto* after = new PlainLabel(localized("&After:"));
    after->setBuddy(minutes);
    // The label is spoken in the place of what it belongs to.
    after->setAccessibleName(minutes->accessibleName());
    auto* cells = new QHBoxLayout;
    cells->addWidget(after);
    cells->addWidget(minutes);
    cells->addStretch(1);
    form.addRow(QString(), cells);
    settings.bind(*detection, kEnableIdleDetection);
    settings.bind(*minutes, kMinutesUntilIdle);
    settings.observe([&settings, minutes, after] {
        const bool isDetected = settings.defaults().boolForKey(kEnableIdleDetection);
        minutes->setEnabled(isDetected);
        after->setEnabled(isDetected);
    });
}

void GeneralTab::addAppearance(QFormLayout& form, SettingsBinding& settings) {
    auto* presence = new QComboBox;
    presence->setObjectName(QStringLiteral("presence"));
    for (const Presence& choice : kPresences)
        presence->addItem(Images::named(QLatin1String(choice.image)), localized(choice.text));
    form.addRow(localized("Sho&w Ticklog in:"), presence);
    form.setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    settings.observe([&settings, presence] {
        const bool isInTaskBar = settings.defaults().integerForKey(kTKPrefAppType) == 1;
        const bool isInTray = settings.defaults().boolForKey(kTKPrefShowMenuItem);
        const auto shown = std::ranges::find_if(kPresences, [&](const Presence& choice) {
            return (choice.appType == 1) == isInTaskBar && choice.showsMenuItem == isInTray;
        });
        presence->setCurrentIndex(shown == std::end(kPresences) ? -1 : int(shown - kPresences));
    });
    connect(presence, &QComboBox::activated, this, [&settings](int chosen) {
        const Presence& choice = kPresences[chosen];
        // The one that is added is stored first, so that Ticklog is never nowhere.
        if (choice.showsMenuItem)
            settings.defaults().setObject(kTKPrefShowMenuItem, true);
        settings.defaults().setObject(kTKPrefAppType, choice.appType);
        settings.defaults().setObject(kTKPrefShowMenuItem, choice.showsMenuItem);
    });
}
