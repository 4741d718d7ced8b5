// SPDX-License-Identifier: MIT
#include "interface/preferences/HistoryTab.h"

#include "Classes/common/Settings.h"
#include "Classes/engine/AbsenceWatch.h"
#include "interface/preferences/SettingsBinding.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/DurationText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTime>

namespace {

constexpr int kMargin = 18;
constexpr int kHours = 24;

struct Keeping {
    int days;
    const char* text;
};

constexpr Keeping kKeepings[] = {{0, QT_TRANSLATE_NOOP("Ticklog", "Forever")},
                                 {1826, QT_TRANSLATE_NOOP("Ticklog", "For five years")},
                                 {365, QT_TRANSLATE_NOOP("Ticklog", "For a year")},
                                 {90, QT_TRANSLATE_NOOP("Ticklog", "For 90 days")},
                                 {-1, QT_TRANSLATE_NOOP("Ticklog", "Not at all")}};

// From which length on an absence is asked about, in minutes.
constexpr int kAbsences[] = {5, 15, 30, 60};

QLabel* paragraph(const QString& text) {
    auto* label = new PlainLabel(text);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

HistoryTab::HistoryTab(SettingsBinding& settings, Actions actions)
    : m_actions(std::move(actions))
    , m_days(new QComboBox)
    , m_obstacle(new PlainLabel)
    , m_ask(new QCheckBox(localized("&Ask what an absence was")))
    , m_askLength(new QComboBox)
    , m_askLengthLabel(new PlainLabel(localized("&Shortest absence:")))
    , m_forget(new QPushButton(localized("&Forget…"))) {
    setObjectName(QStringLiteral("History"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_obstacle->setObjectName(QStringLiteral("historyObstacle"));
    m_obstacle->setWordWrap(true);
    rows->addWidget(m_obstacle);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    addKeeping(*form, settings);
    rows->addLayout(form);
    rows->addWidget(paragraph(
        localized("The history records which title was in front, and when. It stays on this machine, in a "
                  "file that only you can "
                  "read, and lets the timers lose no more than 15 seconds in a crash.")));
    auto* asking = new QFormLayout;
    asking->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    addAsking(*asking, settings);
    rows->addLayout(asking);
    rows->addWidget(
        paragraph(localized("When you come back, a notice and a bar in the window ask what you did. Your "
                            "answer is booked by hand; without one, the time stays idle.")));
    m_forget->setObjectName(QStringLiteral("forgetHistory"));
    connect(m_forget, &QPushButton::clicked, this, [this] { m_actions.forget(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_forget);
    buttons->addStretch(1);
    rows->addLayout(buttons);
    rows->addStretch(1);
    settings.observe([this] { reload(); });
}

void HistoryTab::addKeeping(QFormLayout& form, SettingsBinding& settings) {
    m_days->setObjectName(QStringLiteral("historyDays"));
    form.addRow(localized("&Keep the history:"), m_days);
    settings.observe([this, &settings] { showDays(settings.defaults().integerForKey(kHistoryDays)); });
    connect(m_days, &QComboBox::activated, this, [this, &settings](int choice) {
        const std::int64_t days = m_days->itemData(choice).toLongLong();
        if (days != settings.defaults().integerForKey(kHistoryDays) && m_actions.mayKeepFor(days))
            settings.defaults().setObject(kHistoryDays, days);
        showDays(settings.defaults().integerForKey(kHistoryDays));
    });
    auto* begins = new QComboBox;
    begins->setObjectName(QStringLiteral("historyDayBegins"));
    for (int hour = 0; hour < kHours; ++hour)
        begins->addItem(QLocale().toString(QTime(hour, 0), QLocale::ShortFormat), hour);
    form.addRow(localized("A &day begins at:"), begins);
    settings.bind(*begins, kHistoryDayBegins);
}

void HistoryTab::addAsking(QFormLayout& form, SettingsBinding& settings) {
    m_ask->setObjectName(QStringLiteral("askAfterAbsence"));
    m_askLength->setObjectName(QStringLiteral("askAfterMinutes"));
    form.addRow(m_ask);
    m_askLengthLabel->setBuddy(m_askLength);
    form.addRow(m_askLengthLabel, m_askLength);
    settings.bind(*m_ask, kAskAfterAbsence);
    settings.observe([this, &settings] {
        const std::int64_t minutes = AbsenceWatch::shortestAbsence(settings.defaults()).count();
        const QSignalBlocker quiet(m_askLength);
        m_askLength->clear();
        for (const int choice : kAbsences)
            m_askLength->addItem(durationInWords(60.0 * choice, false), choice);
        if (m_askLength->findData(qlonglong(minutes)) < 0)
            m_askLength->addItem(durationInWords(60.0 * double(minutes), false), qlonglong(minutes));
        m_askLength->setCurrentIndex(m_askLength->findData(qlonglong(minutes)));
        offerAsking();
    });
    connect(m_askLength, &QComboBox::activated, this, [this, &settings](int choice) {
        settings.defaults().setObject(kAskAfterMinutes, m_askLength->itemData(choice).toInt());
    });
}

// Without a history, answers would have no place.
void HistoryTab::offerAsking() {
    const bool isKept = m_obstacle->text().isEmpty();
    m_ask->setEnabled(isKept);
    for (QWidget* control : {static_cast<QWidget*>(m_askLength), static_cast<QWidget*>(m_askLengthLabel)})
        control->setEnabled(isKept && m_ask->isChecked());
}

// The settings may hold a number of days that is not among the choices.
void HistoryTab::showDays(std::int64_t days) {
    const QSignalBlocker quiet(m_days);
    m_days->clear();
    for (const Keeping& keeping : kKeepings)
        m_days->addItem(localized(keeping.text), qlonglong(keeping.days));
    if (days < 0)
        days = -1;
    if (m_days->findData(qlonglong(days)) < 0)
        m_days->addItem(localized("For %@ days").replace(QLatin1String("%@"), QLocale().toString(days)),
                        qlonglong(days));
    m_days->setCurrentIndex(m_days->findData(qlonglong(days)));
}

void HistoryTab::reload() {
    const QString obstacle = m_actions.obstacle();
    m_obstacle->setText(obstacle);
    m_obstacle->setVisible(!obstacle.isEmpty());
    m_forget->setEnabled(obstacle.isEmpty());
    offerAsking();
}
