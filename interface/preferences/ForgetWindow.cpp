// SPDX-License-Identifier: MIT
#include "interface/preferences/ForgetWindow.h"

#include "Classes/report/Moment.h"
#include "interface/preferences/SumsTable.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/FirstSize.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeView>

using namespace std::chrono_literals;

namespace {

constexpr QSize kSize(560, 460);
// Waits until the user has stopped typing.
constexpr auto kWhileTyping = 250ms;

} // namespace

ForgetWindow::ForgetWindow(std::unique_ptr<HistoryReader> reader, RunLoop& runLoop, Alerts& alerts,
                           Forget forget, QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_reader(std::move(reader))
    , m_runLoop(runLoop)
    , m_alerts(alerts)
    , m_forget(std::move(forget))
    , m_program(new QComboBox)
    , m_title(new QLineEdit)
    , m_when(new QComboBox)
    , m_day(new QDateTimeEdit)
    , m_from(new QDateTimeEdit)
    , m_until(new PlainLabel(localized("until")))
    , m_to(new QDateTimeEdit)
    , m_found(new PlainLabel)
    , m_sums(SumsTable::make(this))
    , m_button(new QPushButton(localized("&Forget…"))) {
    setObjectName(QStringLiteral("forgetWindow"));
    setWindowTitle(localized("Forget"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    addControls();
    for (QComboBox* box : {m_program, m_when})
        connect(box, &QComboBox::currentIndexChanged, this, &ForgetWindow::choiceChanged);
    connect(m_title, &QLineEdit::textChanged, this, &ForgetWindow::choiceChanged);
    connect(m_day, &QDateTimeEdit::dateTimeChanged, this, &ForgetWindow::dayChanged);
    for (QDateTimeEdit* edit : {m_from, m_to})
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, &ForgetWindow::choiceChanged);
    connect(m_button, &QPushButton::clicked, this, &ForgetWindow::ask);
    resize(firstSize(*this, kSize));
}

void ForgetWindow::addControls() {
    m_program->setObjectName(QStringLiteral("forgottenProgram"));
    m_program->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_title->setObjectName(QStringLiteral("forgottenTitle"));
    m_title->setPlaceholderText(localized("Any title"));
    m_when->setObjectName(QStringLiteral("forgottenWhen"));
    m_when->addItems({localized("At any time"), localized("On the day"), localized("From")});
    m_day->setObjectName(QStringLiteral("forgottenDay"));
    m_day->setAccessibleName(localized("On the day"));
    m_day->setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
    for (QDateTimeEdit* edit : {m_from, m_to})
        edit->setDisplayFormat(QLocale().dateTimeFormat(QLocale::ShortFormat));
    m_from->setObjectName(QStringLiteral("forgottenFrom"));
    m_from->setAccessibleName(localized("Begin"));
    m_to->setObjectName(QStringLiteral("forgottenTo"));
    m_to->setAccessibleName(localized("End"));
    m_found->setObjectName(QStringLiteral("forgottenFound"));
    m_found->setWordWrap(true);
    auto* times = new QHBoxLayout;
    for (QWidget* part : std::initializer_list<QWidget*>{m_when, m_day, m_from, m_until, m_to})
        times->addWidget(part);
    times->addStretch(1);
    auto* form = new QFormLayout;
    form->addRow(localized("&Program:"), m_program);
    form->addRow(localized("&Title contains:"), m_title);
    auto* whenLabel = new PlainLabel(localized("&When:"));
    whenLabel->setBuddy(m_when);
    form->addRow(whenLabel, times);
    auto* explanation = new PlainLabel(localized("The history forgets it for good. Timers keep their names "
                                                 "and times; to remove those, delete their rows."));
    explanation->setWordWrap(true);
    explanation->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QDialogButtonBox;
    m_button->setObjectName(QStringLiteral("forgetFound"));
    // In the order in which they are shown: otherwise the toolkit's Tab would leave out the one that it made.
    buttons->addButton(m_button, QDialogButtonBox::ActionRole);
    buttons->addButton(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(form);
    rows->addWidget(m_found);
    rows->addWidget(SumsTable::view(*m_sums, localized("What would be forgotten")), 1);
    rows->addWidget(explanation);
    rows->addWidget(buttons);
}

void ForgetWindow::openFor(const QDate& today, int dayBegins) {
    m_dayBegins = dayBegins;
    {
        const QSignalBlocker quiet[] = {QSignalBlocker(m_program), QSignalBlocker(m_title),
                                        QSignalBlocker(m_when), QSignalBlocker(m_day)};
        m_program->clear();
        m_program->addItem(localized("All programs"));
        m_title->clear();
        // "Today" rather than "all": nothing should be chosen to be lost for good by opening a window.
        m_when->setCurrentIndex(Day);
        m_day->setDateTime(QDateTime(today, QTime(12, 0)));
    }
    dayChanged();
    open();
    readPrograms();
}

void ForgetWindow::readPrograms() {
    m_button->setEnabled(false);
    m_reader->ask<QStringList>(programsIn, [this](const Result<QStringList>& names) {
        const QSignalBlocker quiet(m_program);
        if (names)
            for (const QString& name : *names)
                m_program->addItem(PlainText::cut(name, PlainText::kLongestEntry), name);
        choiceChanged();
    });
}

ForgetWindow::When ForgetWindow::when() const {
    return When(m_when->currentIndex());
}

HistoryChange::Forgotten ForgetWindow::choice() const {
    HistoryChange::Forgotten what{.program = {}, .title = {}, .from = {}, .to = {}, .isTitlePart = true};
    if (m_program->currentIndex() > 0)
        what.program = m_program->currentData().toString();
    if (!m_title->text().isEmpty())
        what.title = m_title->text();
    if (when() == Range) {
        what.from = shownAs(m_from->date(), m_from->time()).toMSecsSinceEpoch();
        what.to = shownAs(m_to->date(), m_to->time()).toMSecsSinceEpoch();
    } else if (when() == Day) {
        what.from = beginningOf(m_day->date(), m_dayBegins).toMSecsSinceEpoch();
        what.to = beginningOf(m_day->date().addDays(1), m_dayBegins).toMSecsSinceEpoch();
    }
    return what;
}

// A range begins as the day that was chosen before.
void ForgetWindow::dayChanged() {
    const QSignalBlocker quiet[] = {QSignalBlocker(m_from), QSignalBlocker(m_to)};
    m_from->setDateTime(beginningOf(m_day->date(), m_dayBegins));
    m_to->setDateTime(beginningOf(m_day->date().addDays(1), m_dayBegins));
    choiceChanged();
}

void ForgetWindow::choiceChanged() {
    m_day->setVisible(when() == Day);
    m_from->setVisible(when() == Range);
    m_until->setVisible(when() == Range);
    m_to->setVisible(when() == Range);
    m_isForgetting = false;
    m_finding.reset();
    m_button->setEnabled(false);
    m_nextLook = m_runLoop.scheduleOnce(kWhileTyping, [this] { look(); });
}

void ForgetWindow::look() {
    m_reader->ask<HistoryFinding>(
        [what = choice()](SqliteDatabase& history) { return HistoryFinding::of(history, what); },
        [this](const Result<HistoryFinding>& found) { show(found); });
}

void ForgetWindow::show(const Result<HistoryFinding>& found) {
    // A newer search is about to start.
    if (m_nextLook && m_nextLook->isValid())
        return;
    SumsTable::show(*m_sums, found ? found->longest : std::vector<HistorySum>());
    m_button->setEnabled(found && found->sums > 0);
    if (!found) {
        m_found->setText(localized("The history cannot be read."));
        return;
    }
    m_finding = *found;
    m_found->setText(SumsTable::text(found->sums, found->length));
    m_found->setAccessibleDescription(m_found->text());
}

void ForgetWindow::ask() {
    if (!m_finding)
        return;
    const HistoryChange::Forgotten what = choice();
    const int answer = m_alerts.ask(
        {.message = localized("Forget this for good?"),
         .informativeText = SumsTable::text(m_finding->sums, m_finding->length) + u'\n' +
                            localized("It is removed from the file at once. This cannot be undone."),
         .defaultButton = localized("Cancel"),
         .alternateButton = localized("Forget"),
         .otherButton = {}});
    if (answer != Alerts::Alternate)
        return;
    m_isForgetting = true;
    m_finding.reset();
    m_button->setEnabled(false);
    SumsTable::show(*m_sums, {});
    m_found->setText(localized("It is being forgotten…"));
    m_forget(what, [window = QPointer(this)](bool isDone) {
        if (window && window->m_isForgetting)
            window->m_found->setText(isDone ? localized("It is forgotten.")
                                            : localized("It is not forgotten yet, because the history cannot "
                                                        "be saved at the moment. Ticklog keeps trying."));
    });
}
