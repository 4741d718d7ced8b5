// SPDX-License-Identifier: MIT
#include "interface/preferences/ForgetWindow.h"

#include "Classes/engine/TimeTracker.h"
#include "interface/preferences/SumsTable.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
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
    for (QDateTimeEdit* edit : {m_from, m_to})
        connect(edit, &QDateTimeEdit::dateTimeChanged, this, &ForgetWindow::choiceChanged);
    connect(m_button, &QPushButton::clicked, this, &ForgetWindow::ask);
    resize(kSize);
}

void ForgetWindow::addControls() {
    m_program->setObjectName(QStringLiteral("forgottenProgram"));
    m_program->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_title->setObjectName(QStringLiteral("forgottenTitle"));
    m_title->setPlaceholderText(localized("Any title"));
    m_when->setObjectName(QStringLiteral("forgottenWhen"));
    m_when->addItems({localized("At any time"), localized("On the day"), localized("From")});
    m_from->setObjectName(QStringLiteral("forgottenFrom"));
    m_from->setAccessibleName(localized("Begin"));
    m_to->setObjectName(QStringLiteral("forgottenTo"));
    m_to->setAccessibleName(localized("End"));
    m_found->setObjectName(QStringLiteral("forgottenFound"));
    m_found->setWordWrap(true);
    auto* times = new QHBoxLayout;
    for (QWidget* part : std::initializer_list<QWidget*>{m_when, m_from, m_until, m_to})
        times->addWidget(part);
    times->addStretch(1);
    auto* form = new QFormLayout;
    form->addRow(localized("&Program:"), m_program);
    form->addRow(localized("&Title contains:"), m_title);
    auto* whenLabel = new PlainLabel(localized("&When:"));
    whenLabel->setBuddy(m_when);
    form->addRow(whenLabel, times);
    auto* explanation = new PlainLabel(localized(
        "The history forgets it for good. Timers keep their names and times: delete their rows for that."));
    explanation->setWordWrap(true);
    explanation->setForegroundRole(QPalette::PlaceholderText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_button->setObjectName(QStringLiteral("forgetFound"));
    buttons->addButton(m_button, QDialogButtonBox::ActionRole);
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
                                        QSignalBlocker(m_when), QSignalBlocker(m_from), QSignalBlocker(m_to)};
        m_program->clear();
        m_program->addItem(localized("All programs"));
        m_title->clear();
        // "Today" rather than "all": nothing should be chosen to be lost for good by opening a window.
        m_when->setCurrentIndex(Day);
        m_from->setDateTime(QDateTime(today, QTime(m_dayBegins, 0)));
        m_to->setDateTime(QDateTime(today.addDays(1), QTime(m_dayBegins, 0)));
    }
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
        what.from = m_from->dateTime().toMSecsSinceEpoch();
        what.to = m_to->dateTime().toMSecsSinceEpoch();
    } else if (when() == Day) {
        const QTime begin(m_dayBegins, 0);
        what.from = QDateTime(m_from->date(), begin).toMSecsSinceEpoch();
        what.to = QDateTime(m_from->date().addDays(1), begin).toMSecsSinceEpoch();
    }
    return what;
}

void ForgetWindow::choiceChanged() {
    const QString day = QLocale().dateFormat(QLocale::ShortFormat);
    m_from->setDisplayFormat(when() == Range ? QLocale().dateTimeFormat(QLocale::ShortFormat) : day);
    m_to->setDisplayFormat(QLocale().dateTimeFormat(QLocale::ShortFormat));
    m_from->setVisible(when() != Always);
    m_until->setVisible(when() == Range);
    m_to->setVisible(when() == Range);
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
    m_forget(what);
    m_finding.reset();
    m_button->setEnabled(false);
    SumsTable::show(*m_sums, {});
    m_found->setText(localized("It is forgotten."));
}
